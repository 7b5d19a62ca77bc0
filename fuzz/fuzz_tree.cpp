// A run of the conformance suite's model that the bytes choose: documents are made, loaded, edited, searched, saved and
// loaded again, and every answer of the engine is held to the model's.

#include <axmEngineAccess.h>
#include <axsRegister.h>
#include <model/axmModelDraw.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  static std::shared_ptr<axmDocumentFactory> const engine = (axs_register(), axm::engine());

  // A step takes about so many bytes.
  std::size_t const steps = std::min<std::size_t>(size / 12 + 1, 200);
  axmModelDraw draw(axmModelTopic::everything, axmModelRandom(data, size));
  axmModelRun run(*engine, 16);
  std::vector<axmModelStep> done;
  while (done.size() < steps && run.difference().empty())
  {
    done.push_back(draw.next(run));
    run.execute(done.back());
  }
  run.compare_all();
  if (run.difference().empty())
    return 0;
  std::cerr << axm_model_program(done) << "// " << run.difference() << '\n';
  std::abort();
}
