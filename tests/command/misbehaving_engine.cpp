// An engine that does something terrible when it loads a certain document; the variable AXM_MISBEHAVIOUR says what.

#include <axmDocumentFactory.h>
#include <axmEngine.h>
#include <axsRegister.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#if defined(_WIN32)
#  include <io.h>
#else
#  include <unistd.h>
#endif

namespace
{
using Document = std::shared_ptr<axmDocument>;
using Factory = std::shared_ptr<axmDocumentFactory>;

// The compiler is not to know how it goes on.
bool volatile always = true;

int overflow_stack(int depth)
{
  char volatile room[4096];
  room[0] = static_cast<char>(depth);
  return always ? overflow_stack(depth + 1) + room[0] : depth;
}

void break_heap()
{
  char* volatile block = static_cast<char*>(std::malloc(100));
  std::free(block);
  std::free(block);
}

void run_for_ever()
{
  while (always)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void close_standard_output()
{
#if defined(_WIN32)
  _close(1);
#else
  close(1);
#endif
}

// For longer than a group has once one has hung.
void wait_at_the_end()
{
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
}

void misbehave(std::string const& how)
{
  if (how == "crash")
    std::raise(SIGSEGV);
  else if (how == "abort")
    std::abort();
  else if (how == "exit")
    std::exit(0);
  else if (how == "quick exit")
    std::_Exit(0);
  else if (how == "stack overflow")
    overflow_stack(0);
  else if (how == "hang" || how == "hang and slow end")
    run_for_ever();
  else if (how == "exception")
    throw std::runtime_error("thrown by the engine");
  else if (how == "thread")
    std::thread(run_for_ever).detach();
  else if (how == "closed output")
    close_standard_output();
  else if (how == "broken heap")
    break_heap();
}

class MisbehavingFactory : public axmDocumentFactory
{
public:
  explicit MisbehavingFactory(Factory given) : engine(std::move(given)) {}
  ~MisbehavingFactory() override = default;

  Document createDocument(apString const& root_name) const override { return engine->createDocument(root_name); }
  Document loadDocument(apPath const& path, axmLoadOptions const& options, axmParseError& error) const override
  {
    return engine->loadDocument(path, options, error);
  }
  Document loadDocument(apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const override
  {
    // Of axmNodeUtest::test_set_text.
    if (std::string_view(data.data(), data.size()).find("Some More Text2") != std::string_view::npos)
      misbehave(std::getenv("AXM_MISBEHAVIOUR"));
    return engine->loadDocument(data, options, error);
  }
  bool saveDocument(Document document, apByteArray& output) override { return engine->saveDocument(document, output); }
  bool saveDocument(Document document, apPath const& path) override { return engine->saveDocument(document, path); }

private:
  Factory engine;
};
}

extern "C" void axm_register_engine()
{
  char const* const how = std::getenv("AXM_MISBEHAVIOUR");
  if (how != nullptr && std::string_view(how) == "hang and slow end")
    std::atexit(wait_at_the_end);
  axs_register();
  utServiceName const name(ut_lit("XMLService"));
  utServiceName resolved;
  Factory const engine = utService::locate_service<axmDocumentFactory>(name, resolved);
  utService::get_instance()->register_service(name, std::make_shared<MisbehavingFactory>(engine));
}
