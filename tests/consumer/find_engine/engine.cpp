// What a program does that uses the installed engine: it registers it and loads a document.

#include <axmDocumentFactory.h>
#include <axsRegister.h>

#include <cstdio>

int main()
{
  axs_register();
  utServiceName resolved;
  auto const factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  char const text[] = "<schema><file>example.xsd</file></schema>";
  axmParseError error;
  auto const document = factory->loadDocument(apByteArray(text, sizeof text - 1), axmLoadOptions(), error);
  if (document == nullptr)
    return 1;
  utString const file = document->getDocumentElement()->selectSingleNode(APSTRING("file"))->get_text().to_utf8();
  std::printf("%s\n", file.c_str());
  return 0;
}
