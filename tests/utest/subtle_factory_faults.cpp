#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <string>
#include <string_view>

namespace
{
// Loads with other options than were given.
template <class Change>
void put_into_options(Hooks& hooks, Change change)
{
  hooks.load_bytes = [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options,
                       axmParseError& error) { return factory->loadDocument(data, change(options), error); };
  hooks.load_file = [change](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) { return factory->loadDocument(path, change(options), error); };
}

// Changes the document that was loaded.
template <class Change>
void put_into_documents(Hooks& hooks, Change change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(data, options, error);
    if (document != nullptr)
      change(document);
    return document;
  };
}

// Tells another error.
template <class Change>
void put_into_errors(Hooks& hooks, Change change)
{
  hooks.load_bytes =
    [change](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
  {
    Document const document = factory->loadDocument(data, options, error);
    if (document == nullptr)
      change(error, data);
    return document;
  };
}

// Saves other bytes than the right ones.
template <class Change>
void put_into_output(Hooks& hooks, Change change)
{
  hooks.save_bytes = [change](Factory const& factory, Document const& document, apByteArray& output)
  {
    bool const saved = factory->saveDocument(document, output);
    if (saved)
      output = bytes_of(change(text_of(output)));
    return saved;
  };
}

// Calls `use` with every node of a document.
template <class Use>
void for_each(Document const& document, Use use)
{
  std::vector<Node> waiting = {document};
  while (!waiting.empty())
  {
    Node const node = waiting.back();
    waiting.pop_back();
    for (Node child = node->getFirstChild(); child != nullptr; child = child->getNextSibling())
      waiting.push_back(child);
    use(node);
  }
}

// Takes the children of the document that are no elements out.
template <class Kind>
void drop_from_top(Document const& document)
{
  Node next;
  for (Node child = document->getFirstChild(); child != nullptr; child = next)
  {
    next = child->getNextSibling();
    if (std::dynamic_pointer_cast<Kind>(child) != nullptr)
      document->removeChild(child);
  }
}
}

std::vector<Fault> const& subtle_factory_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "an entity limit of 0 is none",
      [](Hooks& h)
      {
        put_into_options(h,
          [](axmLoadOptions options)
          {
            if (options.entity_expansion_limit() == 0)
              options.set_entity_expansion_limit(50000);
            return options;
          });
      }},
    {"loadDocument", "the entity limit is one too high beyond 5",
      [](Hooks& h)
      {
        put_into_options(h,
          [](axmLoadOptions options)
          {
            if (options.entity_expansion_limit() > 5)
              options.set_entity_expansion_limit(options.entity_expansion_limit() + 1);
            return options;
          });
      }},
    {"loadDocument", "entities in a document that holds elements in them are not counted",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          if (holds(data, "&m;"))
            options.set_entity_expansion_limit(50000);
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "from a file the entity limit does nothing",
      [](Hooks& h)
      {
        h.load_file = [](Factory const& factory, apPath const& path, axmLoadOptions options, axmParseError& error)
        {
          options.set_entity_expansion_limit(50000);
          return factory->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "an external entity in an internal one is resolved",
      [](Hooks& h)
      {
        h.load_bytes = [](Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          if (holds(data, "<!ENTITY i"))
            options.set_disable_entity_resolution(false);
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "a document that needs an external entity loads without it",
      [](Hooks& h)
      {
        read_as(h, [](std::string const& text)
          { return text.find("SYSTEM") != std::string::npos ? with(text, "&e;</r>", "</r>") : text; });
      }},
    {"loadDocument", "a mark before UTF-8 is no XML",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "\xEF\xBB\xBF", "x"); }); }},
    {"loadDocument", "UTF-16 is not understood",
      [](Hooks& h)
      {
        read_as(
          h, [](std::string const& text) { return text.find('\0') != std::string::npos ? std::string("x") : text; });
      }},
    {"loadDocument", "other encodings are taken for UTF-8",
      [](Hooks& h)
      {
        read_as(h, [](std::string const& text)
          { return text.find("ISO-8859-1") != std::string::npos ? std::string("<r>\xC3\x83</r>") : text; });
      }},
    {"loadDocument", "surrogates in UTF-8 are characters",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "\xED\xA0\x80", "x"); }); }},
    {"loadDocument", "a line end of two characters stays one",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "a\r\nb", "a&#13;\nb"); }); }},
    {"loadDocument", "CDATA sections are left out",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "<![CDATA[b]]>", ""); }); }},
    {"loadDocument", "line ends in attributes are kept",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, "a\tb\nc", "a b&#10;c"); }); }},
    {"loadDocument", "defaults of attributes are not there",
      [](Hooks& h)
      { read_as(h, [](std::string const& text) { return with(text, "k CDATA 'given'", "k CDATA #IMPLIED"); }); }},
    {"loadDocument", "empty attributes are left out",
      [](Hooks& h)
      {
        put_into_documents(h,
          [](Document const& document)
          {
            for_each(document,
              [](Node const& node)
              {
                auto const element = std::dynamic_pointer_cast<axmElement>(node);
                for (wchar_t const* const name : {L"k", L"K", L"id", L"a"})
                  if (element != nullptr && element->getAttribute(apString(name)).empty())
                    element->removeAttribute(apString(name));
              });
          });
      }},
    {"loadDocument", "comments outside the root are left out",
      [](Hooks& h)
      { put_into_documents(h, [](Document const& document) { drop_from_top<axmCommentNode>(document); }); }},
    {"loadDocument", "instructions outside the root are left out",
      [](Hooks& h)
      { put_into_documents(h, [](Document const& document) { drop_from_top<axmProcessingInstruction>(document); }); }},
    {"loadDocument", "a second document of the same bytes is the first one",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<std::string, Document>>>();
        h.load_bytes =
          [known](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          for (auto const& [text, document] : *known)
            if (text == text_of(data))
              return document;
          Document const document = factory->loadDocument(data, options, error);
          if (document != nullptr && data.size() < 1000)
            known->emplace_back(text_of(data), document);
          return document;
        };
      }},
    {"white space", "a no-break space is dropped",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, ">\xC2\xA0<", "><"); }); }},
    {"white space", "an ideographic space is dropped",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, ">\xE2\x80\x83<", "><"); }); }},
    {"loadDocument", "lines are counted by returns and line ends",
      [](Hooks& h)
      {
        put_into_errors(h,
          [](axmParseError& error, apByteArray const& data)
          {
            if (holds(data, "\r\n") && error.line_number() > 0)
              error.set_line_number(error.line_number() * 2);
          });
      }},
    {"loadDocument", "columns are counted from the beginning of the document",
      [](Hooks& h)
      {
        put_into_errors(h, [](axmParseError& error, apByteArray const& data)
          { error.set_column_number(static_cast<int>(data.size())); });
      }},
    {"loadDocument", "comments are not counted as lines",
      [](Hooks& h)
      {
        put_into_errors(h,
          [](axmParseError& error, apByteArray const& data)
          {
            if (holds(data, "<!-- one\n"))
              error.set_line_number(error.line_number() - 1);
          });
      }},
    {"loadDocument", "the schema for no namespace does not count beside others",
      [](Hooks& h)
      {
        put_into_options(h,
          [](axmLoadOptions options)
          {
            if (options.num_external_schemas() > 0)
              options.set_no_namespace_schema(apPath());
            return options;
          });
      }},
    {"loadDocument", "other schemas do not count beside the one for no namespace",
      [](Hooks& h)
      {
        put_into_options(h,
          [](axmLoadOptions const& options)
          {
            if (options.no_namespace_schema().empty())
              return options;
            axmLoadOptions fewer(options.validate_mode());
            fewer.set_no_namespace_schema(options.no_namespace_schema());
            return fewer;
          });
      }},
    {"loadDocument", "a schema is remembered by its name",
      [](Hooks& h)
      {
        auto const known = std::make_shared<bool>(false);
        h.load_bytes = [known](
                         Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          if (*known && holds(data, "<v>12</v>") && !holds(data, "<h"))
            options.set_validate_mode(axmValidateNone);
          *known = *known || options.num_external_schemas() > 1;
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "attributes that a schema does not know are left alone",
      [](Hooks& h) { read_as(h, [](std::string const& text) { return with(text, " more='x'", ""); }); }},
    {"loadDocument", "validation trims texts",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          bool const is_validated = options.validate_mode() == axmValidateWithSchemas;
          std::string const text = text_of(data);
          return factory->loadDocument(bytes_of(is_validated ? with(text, "> x  y <", ">x y<") : text), options, error);
        };
      }},

    {"saveDocument", "a text is saved without its blanks at the ends",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, "> x <", ">x<"); }); }},
    {"saveDocument", "a line end in an attribute stands as it is",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, "&#10;", "\n"); }); }},
    {"saveDocument", "a return in a text stands as it is",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, "&#13;", "\r"); }); }},
    {"saveDocument", "empty attributes are left out",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, " k=\"\"", ""); }); }},
    {"saveDocument", "a character at a border of 8192 bytes is lost",
      [](Hooks& h)
      {
        put_into_output(h,
          [](std::string const& text)
          {
            bool const is_within = text.size() > 8192 && (static_cast<unsigned char>(text[8191]) & 0x80U) != 0;
            return is_within ? text.substr(0, 8191) + text.substr(8192) : text;
          });
      }},
    {"saveDocument", "a comment with two hyphens is saved with one",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          if (factory->saveDocument(document, output))
            return true;
          bool is_mended = false;
          if (document == nullptr)
            return false;
          for_each(document,
            [&](Node const& node)
            {
              if (std::dynamic_pointer_cast<axmCommentNode>(node) == nullptr || node->getNodeValue() != APSTRING("--"))
                return;
              node->set_text(APSTRING("x"));
              is_mended = true;
            });
          return is_mended && factory->saveDocument(document, output);
        };
      }},
    {"saveDocument", "a document without a root is saved as nothing",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const has_root = document == nullptr || document->getDocumentElement() != nullptr;
          if (!has_root)
            output.clear();
          return !has_root || factory->saveDocument(document, output);
        };
      }},
    {"saveDocument", "no document is saved as nothing",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        { return document == nullptr || factory->saveDocument(document, output); };
      }},
    {"saveDocument", "a device that takes nothing is told as saved to",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        { return path == apPath("/dev/full") || factory->saveDocument(document, path); };
      }},
    {"saveDocument", "a second save to one file is left out",
      [](Hooks& h)
      {
        auto const saved = std::make_shared<std::vector<apPath>>();
        h.save_file = [saved](Factory const& factory, Document const& document, apPath const& path)
        {
          for (apPath const& known : *saved)
            if (known == path)
              return true;
          saved->push_back(path);
          return factory->saveDocument(document, path);
        };
      }},
    {"saveDocument", "comments outside the root are left out",
      [](Hooks& h)
      {
        put_into_output(h,
          [](std::string const& text)
          {
            std::size_t const start = text.find("<!--");
            std::size_t const end = text.find("-->");
            bool const is_before_root =
              start != std::string::npos && text.find_first_not_of("\n", text.find("?>") + 2) == start;
            return is_before_root ? text.substr(0, start) + text.substr(end + 3) : text;
          });
      }},
    {"createDocument", "a name may hold blanks at its ends",
      [](Hooks& h) {
        h.create = [](Factory const& factory, apString const& name) { return factory->createDocument(trimmed(name)); };
      }},
    {"createDocument", "a second one of a name shares its root with the first",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::vector<std::pair<apString, Document>>>();
        h.create = [known](Factory const& factory, apString const& name)
        {
          for (auto const& [of, document] : *known)
            if (of == name)
              return document;
          known->emplace_back(name, factory->createDocument(name));
          return known->back().second;
        };
      }},
  };
  return faults;
}
