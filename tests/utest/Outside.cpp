#include "Outside.h"

#include <axmProcessingInstruction.h>

#include <axmCharacterData.h>
#include <filesystem>
#include <regex>
#include <system_error>
#include <utility>

namespace
{
// The schemas of some options as other texts, in files beside them that go with this object.
class ChangedSchemas
{
public:
  ChangedSchemas(axmLoadOptions const& given, Change const& given_change)
    : options(given.validate_mode()),
      change(given_change)
  {
    options.set_entity_expansion_limit(given.entity_expansion_limit());
    options.set_disable_entity_resolution(given.disable_entity_resolution());
    for (int index = 0; index < given.num_external_schemas(); ++index)
      options.add_external_schema(given.external_namespace(index), changed(given.external_schema(index)));
    options.set_no_namespace_schema(changed(given.no_namespace_schema()));
  }
  ChangedSchemas(ChangedSchemas const&) = delete;
  ChangedSchemas& operator=(ChangedSchemas const&) = delete;
  ~ChangedSchemas()
  {
    std::error_code ignored;
    for (std::string const& file : files)
      std::filesystem::remove(std::filesystem::u8path(file), ignored);
  }

  bool is_any() const { return !files.empty(); }

  axmLoadOptions options;

private:
  apPath changed(apPath const& path)
  {
    std::string const text = with_one_quote(contents_of(path));
    std::string const other = change(text);
    if (text == other)
      return path;
    files.push_back(std::string(path.path().c_str()) + ".outside.xsd");
    write(apPath(files.back().c_str()), other);
    return apPath(files.back().c_str());
  }

  Change const& change;
  std::vector<std::string> files;
};

// A document that the schemas refuse is valid if they refuse it no more once they are changed.
template <class Source>
Document lenient(Document (*load)(Factory const&, Source const&, axmLoadOptions const&, axmParseError&),
  Change const& change, Factory const& factory, Source const& source, axmLoadOptions const& options,
  axmParseError& error)
{
  axmParseError const before = error;
  Document const document = load(factory, source, options, error);
  if (document != nullptr || options.validate_mode() != axmValidateWithSchemas)
    return document;
  ChangedSchemas const schemas(options, change);
  axmParseError ignored;
  Document const accepted = schemas.is_any() ? load(factory, source, schemas.options, ignored) : nullptr;
  if (accepted != nullptr)
    error = before;
  return accepted;
}

// A document that the schemas let pass is not valid if they refuse it once they are changed.
template <class Source>
Document strict(Document (*load)(Factory const&, Source const&, axmLoadOptions const&, axmParseError&),
  Change const& change, Factory const& factory, Source const& source, axmLoadOptions const& options,
  axmParseError& error)
{
  Document const document = load(factory, source, options, error);
  if (document == nullptr || options.validate_mode() != axmValidateWithSchemas)
    return document;
  ChangedSchemas const schemas(options, change);
  return schemas.is_any() && load(factory, source, schemas.options, error) == nullptr ? nullptr : document;
}

template <class Source>
Document load(Factory const& factory, Source const& source, axmLoadOptions const& options, axmParseError& error)
{
  return factory->loadDocument(source, options, error);
}

constexpr std::size_t max_size_for_rules = 20000;

std::string in_folder_of(std::string const& file, std::string const& name)
{
  std::size_t const end = file.find_last_of("/\\");
  return end == std::string::npos ? name : file.substr(0, end + 1) + name;
}

// The files that schemas name, as other texts while this object lives.
class ChangedInclusions
{
public:
  ChangedInclusions(axmLoadOptions const& options, Change const& change)
  {
    for (int index = 0; index < options.num_external_schemas(); ++index)
      change_files_of(options.external_schema(index), change);
    change_files_of(options.no_namespace_schema(), change);
  }
  ChangedInclusions(ChangedInclusions const&) = delete;
  ChangedInclusions& operator=(ChangedInclusions const&) = delete;
  ~ChangedInclusions()
  {
    for (auto const& [file, text] : files)
      write(apPath(file.c_str()), text);
  }

  bool is_any() const { return !files.empty(); }

private:
  void change_files_of(apPath const& path, Change const& change)
  {
    static constexpr std::string_view name = "schemaLocation=\"";
    std::string const text = with_one_quote(contents_of(path));
    for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1))
    {
      std::size_t const begin = at + name.size();
      std::string const file = in_folder_of(path.path().c_str(), text.substr(begin, text.find('"', begin) - begin));
      std::string const before = with_one_quote(contents_of(apPath(file.c_str())));
      if (change(before) == before)
        continue;
      files.emplace_back(file, before);
      write(apPath(file.c_str()), change(before));
    }
  }

  std::vector<std::pair<std::string, std::string>> files;
};
}

Loading::Loading(Factory const& given_factory, apByteArray const& data, axmLoadOptions const& given_options,
  axmParseError& given_error)
  : text(text_of(data)),
    options(given_options),
    error(given_error),
    factory(given_factory)
{
}

Loading::Loading(Factory const& given_factory, apPath const& given_path, axmLoadOptions const& given_options,
  axmParseError& given_error)
  : text(contents_of(given_path)),
    options(given_options),
    error(given_error),
    factory(given_factory),
    path(given_path.path().c_str())
{
}

Document Loading::as_it_is() const
{
  return with(options);
}

Document Loading::with(axmLoadOptions const& other) const
{
  return is_of_file() ? factory->loadDocument(apPath(path.c_str()), other, error)
                      : factory->loadDocument(bytes_of(text), other, error);
}

Document Loading::of(std::string const& other, axmParseError& told) const
{
  if (!is_of_file())
    return factory->loadDocument(bytes_of(other), options, told);
  std::string const beside = path + ".outside.xml";
  write(apPath(beside.c_str()), other);
  Document const document = factory->loadDocument(apPath(beside.c_str()), options, told);
  std::error_code ignored;
  std::filesystem::remove(std::filesystem::u8path(beside), ignored);
  return document;
}

void load_by(Hooks& hooks, std::function<Document(Loading const& loading)> const& load)
{
  hooks.load_bytes = [load](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                       axmParseError& error) { return load(Loading(factory, data, options, error)); };
  hooks.load_file = [load](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return load(Loading(factory, path, options, error)); };
}

void judge_as(Hooks& hooks, Change const& change)
{
  load_by(hooks,
    [change](Loading const& loading)
    {
      std::string const plain = with_one_quote(loading.text);
      std::string const other = loading.is_validated() ? change(plain) : plain;
      if (other == plain)
        return loading.as_it_is();
      axmParseError const before = loading.error;
      Document const judged = loading.of(other, loading.error);
      if (judged == nullptr)
        return judged;
      Document const document = loading.as_it_is();
      loading.error = before;
      return document != nullptr ? document : judged;
    });
}

void validate_included_as(Hooks& hooks, Change const& change)
{
  load_by(hooks,
    [change](Loading const& loading)
    {
      axmParseError const before = loading.error;
      Document const document = loading.as_it_is();
      if (document != nullptr || !loading.is_validated())
        return document;
      axmParseError const refusal = loading.error;
      ChangedInclusions const inclusions(loading.options, change);
      Document const accepted = inclusions.is_any() ? loading.as_it_is() : nullptr;
      loading.error = accepted != nullptr ? before : refusal;
      return accepted;
    });
}

Change by_rule(char const* pattern, char const* replacement)
{
  return [rule = std::regex(pattern), replacement](std::string const& text)
  { return text.size() > max_size_for_rules ? text : std::regex_replace(text, rule, replacement); };
}

WideChange by_rule(wchar_t const* pattern, wchar_t const* replacement)
{
  return [rule = std::wregex(pattern), replacement](std::wstring const& text)
  { return text.size() > max_size_for_rules ? text : std::regex_replace(text, rule, replacement); };
}

Change where_it_says(char const* part, Change const& change)
{
  return [part, change](std::string const& text) { return has(text, part) ? change(text) : text; };
}

void save_file_as(Hooks& hooks, Change const& change)
{
  hooks.save_file = [change](Factory const& factory, Document const& document, apPath const& path)
  {
    bool const is_saved = factory->saveDocument(document, path);
    if (is_saved)
      write(path, change(contents_of(path)));
    return is_saved;
  };
}

bool same(Node const& left, Node const& right)
{
  return left != nullptr && right != nullptr && *left == *right;
}

bool is_child(Node const& parent, Node const& child)
{
  return child != nullptr && same(child->getParentNode(), parent);
}

bool is_attribute(Node const& node)
{
  return node != nullptr && !is_element(node) && !is<axmDocument>(node) && !is<axmCharacterData>(node) &&
         !is<axmProcessingInstruction>(node);
}

bool is_empty_text(Node const& node)
{
  return node != nullptr && is_text(node) && node->getNodeValue().empty();
}

bool has(apString const& text, std::wstring_view part)
{
  return text.view().find(part) != std::wstring_view::npos;
}

std::vector<Node> children_of(Node const& node)
{
  std::vector<Node> children;
  for (Node child = node->getFirstChild(); child != nullptr; child = child->getNextSibling())
    children.push_back(child);
  return children;
}

std::vector<apString> names_of_attributes(Element const& element)
{
  std::vector<apString> names;
  Map const map = element->getAttributes();
  for (int index = 0; map != nullptr && index < map->getLength(); ++index)
    names.push_back(map->item(index)->getNodeName());
  return names;
}

void remove_children(Node const& node)
{
  for (Node const& child : children_of(node))
    node->removeChild(child);
}

apString without_end(apString const& text, std::wstring_view characters)
{
  std::wstring_view view = text.view();
  while (!view.empty() && characters.find(view.back()) != std::wstring_view::npos)
    view.remove_suffix(1);
  return apString(view);
}

bool has(std::string_view text, std::string_view part)
{
  return text.find(part) != std::string_view::npos;
}

std::wstring in_place_of(std::wstring text, std::wstring_view wanted, std::wstring_view replacement)
{
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::wstring::npos; at += replacement.size())
    text.replace(at, wanted.size(), replacement);
  return text;
}

std::string without(std::string text, std::string_view begin, std::string_view end)
{
  for (std::size_t at = 0; (at = text.find(begin, at)) != std::string::npos;)
  {
    std::size_t const last = text.find(end, at + begin.size());
    if (last == std::string::npos)
      return text;
    text.erase(at, last + end.size() - at);
  }
  return text;
}

std::string without_in_attributes(std::string text, std::string_view part)
{
  for (std::size_t at = 0; (at = text.find("<xs:attribute ", at)) != std::string::npos; ++at)
  {
    std::size_t const end = text.find('>', at);
    std::size_t const value = text.find(part, at);
    if (value < end)
      text.erase(value, text.find('"', value + part.size()) + 1 - value);
  }
  return text;
}

std::string with_one_quote(std::string const& text)
{
  return with(text, "'", "\"");
}

void accept_as(Hooks& hooks, Change const& change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    axmParseError const before = error;
    Document const document = factory->loadDocument(data, options, error);
    std::string const refused_text = with_one_quote(text_of(data));
    std::string const text = document == nullptr ? change(refused_text) : refused_text;
    if (document != nullptr || text == refused_text)
      return document;
    axmParseError ignored;
    Document const accepted = factory->loadDocument(bytes_of(text), options, ignored);
    if (accepted != nullptr)
      error = before;
    return accepted;
  };
}

void accept_as(Hooks& hooks, char const* wanted, char const* meant)
{
  accept_as(hooks, [wanted, meant](std::string const& text) { return with(text, wanted, meant); });
}

void refuse(Hooks& hooks, std::function<bool(std::string const& text)> const& is_refused)
{
  hooks.load_bytes =
    [is_refused](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  { return is_refused(text_of(data)) ? refused(error) : factory->loadDocument(data, options, error); };
}

void validate_as(Hooks& hooks, Change const& change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  { return lenient(&load<apByteArray>, change, factory, data, options, error); };
  hooks.load_file = [change](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return lenient(&load<apPath>, change, factory, path, options, error); };
}

void validate_as(Hooks& hooks, char const* wanted, char const* meant)
{
  validate_as(hooks, [wanted, meant](std::string const& text) { return with(text, wanted, meant); });
}

void refuse_as(Hooks& hooks, Change const& change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  { return strict(&load<apByteArray>, change, factory, data, options, error); };
  hooks.load_file = [change](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return strict(&load<apPath>, change, factory, path, options, error); };
}

void search_as(Hooks& hooks, WideChange const& change)
{
  hooks.select = [change](Element const& element, apString const& xpath)
  { return element->selectNodes(apString(change(std::wstring(xpath.view())))); };
  hooks.select_single = [change](Element const& element, apString const& xpath)
  { return element->selectSingleNode(apString(change(std::wstring(xpath.view())))); };
}

void search_as(Hooks& hooks, wchar_t const* wanted, wchar_t const* meant)
{
  search_as(hooks, [wanted, meant](std::wstring const& text) { return in_place_of(text, wanted, meant); });
}

void save_as(Hooks& hooks, std::function<std::string(Document const& document, std::string const& text)> const& change)
{
  hooks.save_bytes = [change](Factory const& factory, Document const& document, apByteArray& output)
  {
    bool const is_saved = factory->saveDocument(document, output);
    if (is_saved)
      output = bytes_of(change(document, text_of(output)));
    return is_saved;
  };
}
