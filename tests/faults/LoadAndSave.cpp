// What a program of the library's users does: it loads a document, changes it and saves it in its place.
//   load_and_save FILE         once; exit code 1 and the reason on standard error where that fails
//   load_and_save FILE COUNT   so often, with the change and without it in turn; after the first save it writes a dot

#include <apPath.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axsRegister.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{
bool fails(apString const& reason)
{
  std::fprintf(stderr, "%s\n", reason.to_utf8().c_str());
  return false;
}

bool load_and_save(axmDocumentFactory& engine, apPath const& file, bool has_change)
{
  axmParseError error;
  auto const document = engine.loadDocument(file, axmLoadOptions(axmValidateNone), error);
  if (document == nullptr)
    return fails(error.message());
  auto const root = document->getDocumentElement();
  if (has_change)
    root->set_attribute(APSTRING("b"), 1.5);
  else
    root->removeAttribute(APSTRING("b"));
  return engine.saveDocument(document, file) || fails(APSTRING("The document cannot be saved"));
}
}

int main(int count, char** arguments)
{
  std::setlocale(LC_ALL, "");
  axs_register();
  utServiceName resolved;
  auto const engine = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  if (count < 2 || engine == nullptr)
    return 2;
  apPath const file(arguments[1]);
  int const rounds = count < 3 ? 1 : std::atoi(arguments[2]);
  for (int round = 0; round < rounds; ++round)
  {
    if (!load_and_save(*engine, file, round % 2 == 0))
      return 1;
    if (round == 0 && rounds > 1)
    {
      std::putchar('.');
      std::fflush(stdout);
    }
  }
  return 0;
}
