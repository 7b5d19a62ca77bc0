#include "ConformRecord.h"

#include <cstring>
#include <utility>

namespace
{
// A kind, the number of texts, and each text after its size; sizes have four bytes, the lowest first.
constexpr std::size_t size_bytes = 4;
constexpr std::size_t max_texts = 6;
constexpr std::size_t max_size = std::size_t(64) << 20U;

std::string bytes_of(std::size_t size)
{
  std::string bytes;
  for (std::size_t byte = 0; byte < size_bytes; ++byte)
    bytes += static_cast<char>(size >> 8U * byte & 0xFFU);
  return bytes;
}
}

std::string conform_bytes(ConformRecord const& record)
{
  std::string bytes(1, record.kind);
  bytes += bytes_of(record.texts.size());
  for (std::string const& text : record.texts)
  {
    std::string const kept = text.substr(0, max_size);
    bytes += bytes_of(kept.size()) + kept;
  }
  return bytes;
}

void ConformRecordReader::add(std::string const& bytes)
{
  waiting += bytes;
}

bool ConformRecordReader::next(ConformRecord& record)
{
  if (broken || waiting.empty())
    return false;
  std::size_t at = 1;
  std::size_t count = 0;
  if (!read_size(at, count))
    return false;
  broken = std::strchr("berpnf", waiting[0]) == nullptr || count > max_texts;
  ConformRecord read = {static_cast<ConformRecord::Kind>(waiting[0]), {}};
  for (std::size_t text = 0; text < count && !broken; ++text)
  {
    std::size_t size = 0;
    if (!read_size(at, size))
      return false;
    broken = size > max_size;
    if (broken || size > waiting.size() - at)
      return false;
    read.texts.push_back(waiting.substr(at, size));
    at += size;
  }
  if (broken)
    return false;
  waiting.erase(0, at);
  record = std::move(read);
  return true;
}

bool ConformRecordReader::read_size(std::size_t& at, std::size_t& size) const
{
  if (waiting.size() < at + size_bytes)
    return false;
  size = 0;
  for (std::size_t byte = 0; byte < size_bytes; ++byte)
    size |= std::size_t(static_cast<unsigned char>(waiting[at + byte])) << 8U * byte;
  at += size_bytes;
  return true;
}
