// What a program does that uses the installed libraries: it includes headers by their bare names, links with the targets
// and finds no engine, for it registers none.

#include <apString.h>
#include <axmDocumentFactory.h>
#include <utServiceName.h>

#include <cstdio>

int main()
{
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("urn:example"), apPath(APSTRING("example.xsd")));
  utString const path = options.external_schema(0).path();
  std::printf("%s\n", path.c_str());
  return factory == nullptr && path == ut_lit("example.xsd") ? 0 : 1;
}
