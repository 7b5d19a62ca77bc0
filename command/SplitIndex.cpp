#include "SplitIndex.h"

#include <apPath.h>

#include <nlohmann/json.hpp>

#include <cstdio>

namespace
{
using Json = nlohmann::ordered_json;

int const version = 1;

Json to_json_of(axsRecordSplitter::Part const& part)
{
  return {{"begin", part.begin}, {"end", part.end}, {"first_record", part.first_record}, {"line", part.line},
    {"column", part.column}, {"open_tags", part.open_tags}, {"close_tags", part.close_tags}};
}

axsRecordSplitter::Part part_of(Json const& json)
{
  axsRecordSplitter::Part part;
  part.begin = json.at("begin");
  part.end = json.at("end");
  part.first_record = json.at("first_record");
  part.line = json.at("line");
  part.column = json.at("column");
  part.open_tags = json.at("open_tags");
  part.close_tags = json.at("close_tags");
  return part;
}

bool contents_of(std::string const& name, std::string& text)
{
  std::FILE* const file = apPath(name.c_str()).file_open(apPath::read_mode());
  if (file == nullptr)
    return false;
  char block[4096];
  for (std::size_t count; (count = std::fread(block, 1, sizeof block, file)) > 0;)
    text.append(block, count);
  bool const is_good = std::ferror(file) == 0;
  std::fclose(file);
  return is_good;
}
}

std::string SplitIndex::to_json() const
try
{
  Json json = {{"axm_split", version}, {"file", file}, {"path", path}, {"namespaces", namespaces}, {"size", parts.size},
    {"records", parts.records}, {"prolog_end", parts.prolog_end}, {"prolog_lines", parts.prolog_lines},
    {"prolog_column", parts.prolog_column}, {"parts", Json::array()}};
  for (axsRecordSplitter::Part const& part : parts.parts)
    json["parts"].push_back(to_json_of(part));
  return json.dump(1) + '\n';
}
catch (Json::type_error const&)
{
  return {};
}

std::string SplitIndex::read(std::string const& name, SplitIndex& index)
try
{
  std::string text;
  if (!contents_of(name, text))
    return "cannot be read";
  Json const json = Json::parse(text);
  if (json.at("axm_split") != version)
    return "is an index of another version of axm split";
  index.file = json.at("file");
  index.path = json.at("path");
  index.namespaces = json.at("namespaces").get<std::map<std::string, std::string>>();
  index.parts.size = json.at("size");
  index.parts.records = json.at("records");
  index.parts.prolog_end = json.at("prolog_end");
  index.parts.prolog_lines = json.at("prolog_lines");
  index.parts.prolog_column = json.at("prolog_column");
  for (Json const& part : json.at("parts"))
  {
    index.parts.parts.push_back(part_of(part));
    axsRecordSplitter::Part const& read = index.parts.parts.back();
    if (read.begin < index.parts.prolog_end || read.end < read.begin || read.end > index.parts.size)
      return "is no index of axm split: a part lies outside of the document";
  }
  return {};
}
catch (Json::exception const&)
{
  return "is no index of axm split";
}
