#include "Faults.h"

#include <axmCommentNode.h>
#include <axmTextNode.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace
{
bool wants_schema(axmLoadOptions const& options)
{
  return options.validate_mode() == axmValidateWithSchemas &&
         (options.num_external_schemas() > 0 || !options.no_namespace_schema().empty());
}

apPath decoded(apPath const& path)
{
  return apPath(replaced(apString(path.path()), APSTRING("%20"), APSTRING(" ")));
}

// As a path comes through a code page that knows ASCII only. Not with question marks, which Windows refuses in names.
apPath narrowed(apPath const& path)
{
  std::wstring text(apString(path.path()).view());
  for (wchar_t& character : text)
    character = character > L'\x7F' ? L'_' : character;
  return apPath(text.c_str());
}

apByteArray contents(apPath const& path)
{
  apByteArray bytes;
  std::FILE* const stream = path.file_open(apPath::read_mode());
  if (stream == nullptr)
    return bytes;
  char part[4096];
  for (std::size_t size = 0; (size = std::fread(part, 1, sizeof part, stream)) > 0;)
    bytes.append(part, size);
  std::fclose(stream);
  return bytes;
}

// What comes after `node` under `top` in document order.
Node next_in_document(Node const& node, Node const& top)
{
  if (node->getFirstChild() != nullptr)
    return node->getFirstChild();
  Node current = node;
  while (current != nullptr && !(*current == *top) && current->getNextSibling() == nullptr)
    current = current->getParentNode();
  return current == nullptr || *current == *top ? nullptr : current->getNextSibling();
}

// Takes out of a document the nodes that `unwanted` names.
template <class Unwanted>
Document without(Document const& document, Unwanted unwanted)
{
  Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
  std::vector<Node> nodes;
  for (Node node = root; node != nullptr; node = next_in_document(node, root))
    if (unwanted(node))
      nodes.push_back(node);
  for (Node const& node : nodes)
    node->getParentNode()->removeChild(node);
  return document;
}

// Loads both ways through one function.
template <class Change>
void after_load(Hooks& hooks, Change change)
{
  hooks.load_bytes = [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                       axmParseError& error) { return change(factory->loadDocument(data, options, error), error); };
  hooks.load_file = [change](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return change(factory->loadDocument(path, options, error), error); };
}

template <class Change>
void with_options(Hooks& hooks, Change change)
{
  hooks.load_bytes = [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                       axmParseError& error) { return factory->loadDocument(data, change(options), error); };
  hooks.load_file = [change](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return factory->loadDocument(path, change(options), error); };
}

// The options without the schemas that `unwanted` names.
template <class Unwanted>
axmLoadOptions without_schemas(axmLoadOptions const& options, Unwanted unwanted)
{
  axmLoadOptions kept(options.validate_mode());
  kept.set_entity_expansion_limit(options.entity_expansion_limit());
  kept.set_disable_entity_resolution(options.disable_entity_resolution());
  for (int index = 0; index < options.num_external_schemas(); ++index)
    if (!unwanted(options.external_schema(index), index))
      kept.add_external_schema(options.external_namespace(index), options.external_schema(index));
  if (!options.no_namespace_schema().empty() && !unwanted(options.no_namespace_schema(), -1))
    kept.set_no_namespace_schema(options.no_namespace_schema());
  return kept;
}

bool write(apPath const& path, apByteArray const& bytes, char const* mode)
{
  std::FILE* const stream = path.file_open(mode);
  if (stream == nullptr)
    return false;
  if (!bytes.empty())
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
  return std::fclose(stream) == 0;
}
}

std::vector<Fault> const& factory_faults()
{
  static std::vector<Fault> const faults = {
    {"createDocument", "the root has a name in lower case",
      [](Hooks& h)
      { h.create = [](Factory const& f, apString const& name) { return f->createDocument(lower_case(name)); }; }},
    {"createDocument", "there is no document",
      [](Hooks& h) { h.create = [](Factory const&, apString const&) -> Document { return nullptr; }; }},
    {"createDocument", "every document is the first one of its name",
      [](Hooks& h)
      {
        auto const made = std::make_shared<std::vector<Document>>();
        h.create = [made](Factory const& f, apString const& name)
        {
          for (Document const& document : *made)
            if (Element const root = document->getDocumentElement(); root != nullptr && root->getNodeName() == name)
              return document;
          Document const document = f->createDocument(name);
          if (document != nullptr)
            made->push_back(document);
          return document;
        };
      }},
    {"createDocument", "what is no name becomes one",
      [](Hooks& h)
      {
        h.create = [](Factory const& f, apString const& name)
        {
          Document const document = f->createDocument(name);
          return document != nullptr ? document : f->createDocument(APSTRING("_"));
        };
      }},

    {"loadDocument", "a missing file is an exception",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          if (!path.exists())
            throw std::runtime_error("no such file");
          return f->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "a missing file is an exception of another kind",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          if (!path.exists())
            throw 1;
          return f->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "a missing file is an empty document",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        { return path.exists() ? f->loadDocument(path, options, error) : f->createDocument(APSTRING("empty")); };
      }},
    {"loadDocument", "no file loads",
      [](Hooks& h)
      {
        h.load_file = [](Factory const&, apPath const&, axmLoadOptions const&, axmParseError& error) -> Document
        {
          error = axmParseError(APSTRING("no"));
          return nullptr;
        };
      }},
    {"loadDocument", "file names are percent-decoded",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        { return f->loadDocument(decoded(path), options, error); };
      }},
    {"loadDocument", "file names go through a narrow code page",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        { return f->loadDocument(narrowed(path), options, error); };
      }},
    {"loadDocument", "a file is remembered by its name",
      [](Hooks& h)
      {
        auto const read = std::make_shared<std::vector<std::pair<std::string, apByteArray>>>();
        h.load_file = [read](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          for (auto const& [name, bytes] : *read)
            if (name == path.path().c_str())
              return f->loadDocument(bytes, options, error);
          Document const document = f->loadDocument(path, options, error);
          if (document != nullptr)
            read->emplace_back(path.path().c_str(), contents(path));
          return document;
        };
      }},

    {"loadDocument", "the error is left untouched",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& f, apByteArray const& data, axmLoadOptions const& options, axmParseError&)
        {
          axmParseError ignored;
          return f->loadDocument(data, options, ignored);
        };
      }},
    {"loadDocument", "the error of a file is left untouched",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const& options, axmParseError&)
        {
          axmParseError ignored;
          return f->loadDocument(path, options, ignored);
        };
      }},
    {"loadDocument", "the error has no message",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError& error)
          {
            if (document == nullptr)
              error = axmParseError(apString());
            return document;
          });
      }},
    {"loadDocument", "an error that is there already stays",
      [](Hooks& h)
      {
        h.load_bytes = [](
                         Factory const& f, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          axmParseError fresh;
          Document const document = f->loadDocument(data, options, fresh);
          if (document == nullptr && error.invalid())
            error = fresh;
          return document;
        };
      }},
    {"loadDocument", "the line of the error is one short",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError& error)
          {
            if (document == nullptr)
              error.set_line_number(error.line_number() - 1);
            return document;
          });
      }},
    {"loadDocument", "success is recorded as an error",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error = axmParseError(APSTRING("no error"));
            return document;
          });
      }},
    {"loadDocument", "success clears an earlier error",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error = axmParseError();
            return document;
          });
      }},
    {"loadDocument", "success sets the line",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError& error)
          {
            if (document != nullptr)
              error.set_line_number(1);
            return document;
          });
      }},

    {"loadDocument", "no data loads",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const&, apByteArray const&, axmLoadOptions const&, axmParseError& error) -> Document
        {
          error = axmParseError(APSTRING("no"));
          return nullptr;
        };
      }},
    {"loadDocument", "empty data is an empty document",
      [](Hooks& h)
      {
        h.load_bytes = [](
                         Factory const& f, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        { return data.empty() ? f->createDocument(APSTRING("empty")) : f->loadDocument(data, options, error); };
      }},
    {"loadDocument", "what is not XML becomes a text",
      [](Hooks& h)
      {
        read_as(h, [](std::string const& text)
          { return text.empty() || text.find('<') != std::string::npos ? text : "<text>" + text + "</text>"; });
      }},
    {"loadDocument", "the data ends at a zero byte",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return std::string(text.c_str()); }); }},
    {"loadDocument", "a second root is ignored",
      [](Hooks& h)
      { read_as(h, [](std::string const& text) { return text == "<a/><b/>" ? std::string("<a/>") : text; }); }},
    {"loadDocument", "bytes that are not UTF-8 are replaced",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "\xFF", "?"); }); }},
    {"loadDocument", "UTF-8 is taken for one byte a character",
      [](Hooks& h)
      {
        read_as(h,
          [](std::string const& text)
          {
            std::string wide;
            for (char const c : text)
              wide += static_cast<unsigned char>(c) < 0x80U
                        ? std::string(1, c)
                        : "&#" + std::to_string(static_cast<unsigned char>(c)) + ";";
            return text.find("\xFF") == std::string::npos ? wide : text;
          });
      }},
    {"loadDocument", "undeclared entities are left out",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "&undefined;", ""); }); }},

    {"loadDocument", "schemas are skipped in silence",
      [](Hooks& h)
      {
        with_options(h, [](axmLoadOptions const& options)
          { return without_schemas(options, [](apPath const&, int) { return true; }); });
      }},
    {"loadDocument", "missing schemas are skipped in silence",
      [](Hooks& h)
      {
        with_options(h, [](axmLoadOptions const& options)
          { return without_schemas(options, [](apPath const& path, int) { return !path.exists(); }); });
      }},
    {"loadDocument", "empty schemas are skipped in silence",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options) {
            return without_schemas(
              options, [](apPath const& path, int) { return path.exists() && contents(path).empty(); });
          });
      }},
    {"loadDocument", "the schema for no namespace is ignored",
      [](Hooks& h)
      {
        with_options(h, [](axmLoadOptions const& options)
          { return without_schemas(options, [](apPath const&, int index) { return index < 0; }); });
      }},
    {"loadDocument", "the first schema only is used",
      [](Hooks& h)
      {
        with_options(h, [](axmLoadOptions const& options)
          { return without_schemas(options, [](apPath const&, int index) { return index > 0; }); });
      }},
    {"loadDocument", "schema names are percent-decoded",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed = without_schemas(options, [](apPath const&, int) { return true; });
            for (int index = 0; index < options.num_external_schemas(); ++index)
              changed.add_external_schema(options.external_namespace(index), decoded(options.external_schema(index)));
            changed.set_no_namespace_schema(decoded(options.no_namespace_schema()));
            return changed;
          });
      }},
    {"loadDocument", "validation needs a schema",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& f, apByteArray const& data, axmLoadOptions const& options,
                         axmParseError& error) -> Document
        {
          if (options.validate_mode() != axmValidateWithSchemas || wants_schema(options))
            return f->loadDocument(data, options, error);
          error = axmParseError(APSTRING("no schema"));
          return nullptr;
        };
      }},
    {"loadDocument", "schemas count where validation is not asked for",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_validate_mode(axmValidateWithSchemas);
            return changed;
          });
      }},
    {"loadDocument", "files are not validated",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& f, apPath const& path, axmLoadOptions const&, axmParseError& error)
        { return f->loadDocument(path, axmLoadOptions(), error); };
      }},
    {"loadDocument", "after one invalid document every one is invalid",
      [](Hooks& h)
      {
        auto const failed = std::make_shared<bool>(false);
        h.load_bytes = [failed](Factory const& f, apByteArray const& data, axmLoadOptions const& options,
                         axmParseError& error) -> Document
        {
          Document const document = f->loadDocument(data, options, error);
          if (!wants_schema(options))
            return document;
          *failed = *failed || document == nullptr;
          if (*failed && document != nullptr)
            error = axmParseError(APSTRING("still invalid"));
          return *failed ? nullptr : document;
        };
      }},

    {"loadDocument", "the entity limit does nothing",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_entity_expansion_limit(1000000);
            return changed;
          });
      }},
    {"loadDocument", "the entity limit is one too high",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_entity_expansion_limit(options.entity_expansion_limit() + 1);
            return changed;
          });
      }},
    {"loadDocument", "the entity limit is one too low",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_entity_expansion_limit(options.entity_expansion_limit() - 1);
            return changed;
          });
      }},
    {"loadDocument", "external entities are always resolved",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_disable_entity_resolution(false);
            return changed;
          });
      }},
    {"loadDocument", "external entities are never resolved",
      [](Hooks& h)
      {
        with_options(h,
          [](axmLoadOptions const& options)
          {
            axmLoadOptions changed(options);
            changed.set_disable_entity_resolution(true);
            return changed;
          });
      }},

    {"white space", "a single space is dropped too",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError&) {
            return without(document, [](Node const& n) { return !is_element(n) && n->get_text() == APSTRING(" "); });
          });
      }},
    {"white space", "white space between tags is kept",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, ">  <", "> <"); }); }},
    {"white space", "line ends are kept as spaces",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, ">\n<", "> <"); }); }},
    {"white space", "texts are trimmed",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError&)
          {
            Node const root = document != nullptr ? document->getDocumentElement() : nullptr;
            for (Node node = root; node != nullptr; node = next_in_document(node, root))
              if (std::dynamic_pointer_cast<axmTextNode>(node) != nullptr && node->get_text() != APSTRING(" "))
                node->set_text(trimmed(node->get_text()));
            return document;
          });
      }},
    {"white space", "comments are dropped",
      [](Hooks& h)
      {
        after_load(h,
          [](Document const& document, axmParseError&) {
            return without(
              document, [](Node const& n) { return std::dynamic_pointer_cast<axmCommentNode>(n) != nullptr; });
          });
      }},
    {"white space", "nothing is dropped when validating",
      [](Hooks& h)
      {
        h.load_bytes = [](
                         Factory const& f, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          if (options.validate_mode() == axmValidateNone)
            return f->loadDocument(data, options, error);
          return f->loadDocument(bytes_of(with(text_of(data), ">  <", "> <")), options, error);
        };
      }},

    {"saveDocument", "the output is appended to",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          apByteArray saved;
          bool const ok = f->saveDocument(document, saved);
          output.append(saved.data(), saved.size());
          return ok;
        };
      }},
    {"saveDocument", "nothing is written",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const&, Document const&, apByteArray&) { return true; };
        h.save_file = [](Factory const&, Document const&, apPath const&) { return true; };
      }},
    {"saveDocument", "success is false",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          f->saveDocument(document, output);
          return false;
        };
      }},
    {"saveDocument", "attributes are not escaped",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          bool const ok = f->saveDocument(document, output);
          output = bytes_of(with(text_of(output), "&lt;", "<"));
          return ok;
        };
      }},
    {"saveDocument", "a document is saved in another encoding than it says",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          bool const ok = f->saveDocument(document, output);
          output = bytes_of(with(text_of(output), "\xC3\xA4", "\xE4"));
          return ok;
        };
      }},
    {"saveDocument", "comments are left out",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          bool const ok = f->saveDocument(document, output);
          std::string text = text_of(output);
          std::size_t const start = text.find("<!--");
          if (start != std::string::npos)
            text.erase(start, text.find("-->") + 3 - start);
          output = bytes_of(text);
          return ok;
        };
      }},
    {"saveDocument", "characters that XML cannot hold are left out",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        {
          if (f->saveDocument(document, path))
            return true;
          apByteArray const bytes =
            bytes_of(with(text_of(bytes_of(document->get_xml().to_utf8().c_str())), "\x01", ""));
          return write(path, bytes, apPath::write_mode());
        };
      }},
    {"saveDocument", "a failure leaves an empty file",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        { return f->saveDocument(document, path) || (write(path, apByteArray(), apPath::write_mode()) && false); };
      }},
    {"saveDocument", "a failure leaves an empty output",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          output.clear();
          return f->saveDocument(document, output);
        };
      }},
    {"saveDocument", "every save succeeds",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        {
          f->saveDocument(document, path);
          return true;
        };
      }},
    {"saveDocument", "a missing folder is made",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        {
          std::error_code ignored;
          std::filesystem::path const file = std::filesystem::u8path(path.path().c_str());
          std::filesystem::create_directories(file.parent_path(), ignored);
          return f->saveDocument(document, path);
        };
      }},
    {"saveDocument", "the rest of a longer file stays",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        {
          apByteArray bytes;
          bool const saved = f->saveDocument(document, bytes);
          return saved && write(path, bytes, path.exists() ? "r+b" : "wb");
        };
      }},
    {"saveDocument", "file names are percent-decoded",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        { return f->saveDocument(document, decoded(path)); };
      }},
    {"saveDocument", "file names go through a narrow code page",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& f, Document const& document, apPath const& path)
        { return f->saveDocument(document, narrowed(path)); };
      }},
    {"saveDocument", "saving empties the document",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& f, Document const& document, apByteArray& output)
        {
          bool const ok = f->saveDocument(document, output);
          Node const root = document->getDocumentElement();
          while (root->getFirstChild() != nullptr)
            root->removeChild(root->getFirstChild());
          return ok;
        };
      }},
  };
  return faults;
}
