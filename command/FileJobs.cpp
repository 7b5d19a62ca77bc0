#include "FileJobs.h"

#include "Messages.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

namespace
{
// How many files each thread may be ahead of the one whose turn it is, which bounds what waits in memory.
std::size_t const max_ahead = 4;

class Run
{
public:
  Run(std::vector<std::string> const& given, OutputFile& file, FileJobs::Work const& each, std::size_t thread_count)
    : files(given),
      output(file),
      work(each),
      threads(thread_count),
      codes(given.size(), exit_usage),
      ended(given.size())
  {
  }

  std::vector<int> run();

private:
  void work_on();
  bool take(std::size_t& number);
  int do_one(std::size_t number, JobOutput& job) const;
  void end(std::size_t number, std::unique_ptr<JobOutput> job, int code);

  std::vector<std::string> const& files;
  OutputFile& output;
  FileJobs::Work const& work;
  std::size_t const threads;
  Progress progress;

  std::mutex mutex;
  std::condition_variable turn_moves;
  std::atomic<std::size_t> turn{0};
  std::size_t next = 0;
  bool is_stopped = false;
  std::vector<int> codes;
  // Those that wait for their turn.
  std::vector<std::unique_ptr<JobOutput>> ended;
};

std::vector<int> Run::run()
{
  std::vector<std::thread> others;
  for (std::size_t i = 1; i < threads; ++i)
    others.emplace_back([this] { work_on(); });
  work_on();
  for (std::thread& other : others)
    other.join();
  return std::move(codes);
}

void Run::work_on()
{
  for (std::size_t number = 0; take(number);)
  {
    bool const is_alone = threads == 1;
    auto job = std::make_unique<JobOutput>(output, turn, number, is_alone ? &progress : nullptr);
    int const code = do_one(number, *job);
    end(number, std::move(job), code);
  }
}

bool Run::take(std::size_t& number)
{
  std::unique_lock<std::mutex> lock(mutex);
  turn_moves.wait(lock, [this] { return next >= files.size() || is_stopped || next < turn + max_ahead * threads; });
  if (next >= files.size() || is_stopped)
    return false;
  number = next++;
  return true;
}

int Run::do_one(std::size_t number, JobOutput& job) const
{
  MessageScope const scope(job.errors());
  try
  {
    return work(files[number], job);
  }
  catch (std::exception const& error)
  {
    messages() << "axm: " << error.what() << '\n';
    return exit_bad_input;
  }
}

void Run::end(std::size_t number, std::unique_ptr<JobOutput> job, int code)
{
  std::unique_lock<std::mutex> const lock(mutex);
  codes[number] = code;
  is_stopped = is_stopped || code == exit_usage;
  ended[number] = std::move(job);
  progress.clear();
  for (; turn < ended.size() && ended[turn] != nullptr; ++turn)
  {
    ended[turn]->flush();
    ended[turn].reset();
  }
  if (files.size() > 1)
    progress.show_files(static_cast<long long>(turn), static_cast<long long>(files.size()));
  turn_moves.notify_all();
}
}

FileJobs::FileJobs(unsigned jobs) : threads(jobs > 0 ? jobs : std::max(1U, std::thread::hardware_concurrency())) {}

std::vector<int> FileJobs::run(std::vector<std::string> const& files, OutputFile& output, Work const& work) const
{
  std::size_t const count = std::min<std::size_t>(threads, files.size());
  return Run(files, output, work, std::max<std::size_t>(count, 1)).run();
}

int FileJobs::worst(std::vector<int> const& codes)
{
  return codes.empty() ? exit_good : *std::max_element(codes.begin(), codes.end());
}
