// Loads a document, checked against a schema, reads and changes typed attributes, and saves it as another file:
// edit_document stations.xml stations.xsd OUTPUT

#include <axmDocumentFactory.h>
#include <axmNodeList.h>
#include <axsRegister.h>

#include <iostream>

int main(int argc, char** argv)
{
  if (argc != 4)
  {
    std::cerr << "usage: edit_document FILE SCHEMA OUTPUT\n";
    return 2;
  }

  // The one line that names an engine. Everything below works with whatever is registered.
  axs_register();

  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);

  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(apPath(argv[2]));
  axmParseError error;
  auto const document = factory->loadDocument(apPath(argv[1]), options, error);
  if (document == nullptr)
  {
    std::cerr << error.url().to_utf8() << ':' << error.line_number() << ':' << error.column_number() << ": "
              << error.message().to_utf8() << '\n';
    return 1;
  }

  auto const stations = document->getDocumentElement()->selectNodes(APSTRING("station[@lat > 50]"));
  while (auto const station = stations->next_node())
  {
    double lat = 0;
    if (station->get_attribute(APSTRING("lat"), lat))
      station->set_attribute(APSTRING("lat"), lat + 0.5);
    station->set_attribute(APSTRING("moved"), true);
    std::cout << station->get_xml().to_utf8() << '\n';
  }
  return factory->saveDocument(document, apPath(argv[3])) ? 0 : 1;
}
