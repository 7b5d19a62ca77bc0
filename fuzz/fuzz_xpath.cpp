// XPath expressions of any bytes over a small document: each must end with a list.

#include <axmDocumentFactory.h>
#include <axmNodeList.h>
#include <axsRegister.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{
char const text[] = "<r xmlns:p='u'><a b='1'>x<c/>y</a><!--k--><p:a b='2' xml:lang='en'><c><c/></c></p:a><?go on?></r>";

std::shared_ptr<axmDocument> load()
{
  axs_register();
  utServiceName resolved;
  auto const engine = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  axmParseError error;
  return engine->loadDocument(apByteArray(text, std::strlen(text)), axmLoadOptions(axmValidateNone), error);
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  static std::shared_ptr<axmDocument> const document = load();

  apString const expression = apString::from_utf8({reinterpret_cast<char const*>(data), size});
  auto const nodes = document->getDocumentElement()->selectNodes(expression);
  if (nodes == nullptr)
    std::abort();
  while (auto const node = nodes->next_node())
    node->get_text();
  return 0;
}
