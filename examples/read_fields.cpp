// Takes fields out of an XML file with the streaming reader: read_fields books.xml

#include <axmSimpleXmlFactory.h>

#include <iostream>

int main(int argc, char** argv)
{
  if (argc != 2)
  {
    std::cerr << "usage: read_fields FILE\n";
    return 2;
  }

  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath(argv[1]));
  if (reader->read_file() && reader->down_to("catalog"))
    for (; reader->down_to("book"); reader->up())
    {
      utString const id = reader->attribute("id", "?");
      if (reader->down_to("title"))
      {
        std::cout << id << ": " << reader->text_node() << '\n';
        reader->up();
      }
    }
  else if (!reader->has_error_occurred())
    std::cerr << argv[1] << ": cannot be read or is no catalogue\n";

  reader->dump_error(std::cerr);
  return reader->has_error_occurred() ? 1 : 0;
}
