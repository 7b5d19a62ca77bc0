// The engine over any bytes: what loads can be saved, and what was saved loads again as the same document.

#include <axmEngineAccess.h>
#include <axsRegister.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  static std::shared_ptr<axmDocumentFactory> const engine = (axs_register(), axm::engine());

  axmLoadOptions options(axmValidateNone);
  options.set_entity_expansion_limit(1000);
  axmParseError error;
  auto const document = engine->loadDocument(apByteArray(data, size), options, error);
  if ((document == nullptr) != !error.invalid())
    std::abort();
  if (document == nullptr)
    return 0;

  apByteArray saved;
  if (!engine->saveDocument(document, saved))
    return 0;
  auto const again = engine->loadDocument(saved, options, error);
  apByteArray saved_again;
  if (again == nullptr || !engine->saveDocument(again, saved_again) || saved != saved_again)
    std::abort();
  return 0;
}
