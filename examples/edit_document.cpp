// edit_document.cpp: loads a document, checked against a schema, changes typed attributes, and saves it as another file:
// edit_document stations.xml stations.xsd OUTPUT

#include <axm.h>
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

  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(axm::path(argv[2]));
  auto const document = axm::load_file(argv[1], options);
  if (!document)
  {
    std::cerr << document.error() << '\n';
    return 1;
  }

  for (auto const& station : axm::select(*document, "station[@lat > 50]"))
  {
    if (auto const lat = axm::attribute<double>(station, "lat"))
      axm::set_attribute(station, "lat", *lat + 0.5);
    axm::set_attribute(station, "moved", true);
    std::cout << axm::utf8(station->get_xml()) << '\n';
  }

  auto const saved = axm::save_file(*document, argv[3]);
  if (!saved)
    std::cerr << saved.error() << '\n';
  return saved ? 0 : 1;
}
