// read_fields.cpp: takes fields out of an XML file with the streaming reader: read_fields books.xml

#include <axm.h>

#include <iostream>

int main(int argc, char** argv)
{
  if (argc != 2)
  {
    std::cerr << "usage: read_fields FILE\n";
    return 2;
  }

  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, axm::path(argv[1]));
  if (auto const catalog = axm::read_root(*reader, "catalog"))
    for (auto& book : catalog.children("book"))
      std::cout << book.attribute("id", "?") << ": " << book.child_text("title").value_or("?") << '\n';
  else if (catalog.good())
  {
    std::cerr << argv[1] << ": cannot be read or is no catalogue\n";
    return 1;
  }

  reader->dump_error(std::cerr);
  return reader->has_error_occurred() ? 1 : 0;
}
