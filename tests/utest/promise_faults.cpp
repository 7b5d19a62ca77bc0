// Faults read off the promises of the headers, sentence by sentence, without a look at what the suite checks.

#include "Faults.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace
{
bool is_attribute(Node const& node)
{
  return !is<axmElement>(node) && !is<axmDocument>(node) && !is<axmCharacterData>(node) &&
         !is<axmProcessingInstruction>(node) && node->getParentNode() == nullptr && !node->getNodeName().empty() &&
         node->getNodeName().view().front() != L'#';
}

apString cut(apString const& text, std::size_t length)
{
  return apString(text.view().substr(0, length));
}

bool is_folder(apPath const& path)
{
  return std::filesystem::is_directory(std::filesystem::u8path(path.path().c_str()));
}

// Loads what is in a file only if `may` says so, and fails otherwise.
template <class May>
void refuse_files_unless(Hooks& hooks, May may)
{
  hooks.load_file = [may](Factory const& factory, apPath const& path, axmLoadOptions const& options,
                      axmParseError& error) -> Document
  {
    if (may(bytes_of(contents_of(path))))
      return factory->loadDocument(path, options, error);
    error = axmParseError(APSTRING("refused"));
    return nullptr;
  };
}

// Loads other bytes from a file than are in it.
template <class Change>
void put_into_files(Hooks& hooks, Change change)
{
  hooks.load_file = [change](
                      Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
  {
    return path.exists() ? factory->loadDocument(bytes_of(change(contents_of(path))), options, error)
                         : factory->loadDocument(path, options, error);
  };
}

// Validates only what does not hold `part`.
void leave_alone(Hooks& hooks, char const* part)
{
  hooks.load_bytes = [part](
                       Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
  {
    if (holds(data, part))
      options.set_validate_mode(axmValidateNone);
    return factory->loadDocument(data, options, error);
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
}

std::vector<Fault> const& promise_faults()
{
  static std::vector<Fault> const faults = {
    {"getNodeName", "a text has none",
      [](Hooks& h) { h.node_name = [](Node const& n) { return is<axmTextNode>(n) ? apString() : n->getNodeName(); }; }},
    {"getNodeName", "a comment has that of a text",
      [](Hooks& h)
      { h.node_name = [](Node const& n) { return is<axmCommentNode>(n) ? APSTRING("#text") : n->getNodeName(); }; }},
    {"getNodeName", "a document has that of its root",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->getNodeName() : n->getNodeName();
        };
      }},
    {"getNodeName", "an instruction has none of its own",
      [](Hooks& h)
      {
        h.node_name = [](Node const& n)
        { return is<axmProcessingInstruction>(n) ? APSTRING("#processing-instruction") : n->getNodeName(); };
      }},
    {"getNodeName", "it has 255 characters at most",
      [](Hooks& h) { h.node_name = [](Node const& n) { return cut(n->getNodeName(), 255); }; }},
    {"getNodeValue", "an element has its text",
      [](Hooks& h)
      { h.node_value = [](Node const& n) { return is<axmElement>(n) ? n->get_text() : n->getNodeValue(); }; }},
    {"getNodeValue", "a document has the text of its root",
      [](Hooks& h)
      { h.node_value = [](Node const& n) { return is<axmDocument>(n) ? n->get_text() : n->getNodeValue(); }; }},
    {"getNodeValue", "it has 4096 characters at most",
      [](Hooks& h) { h.node_value = [](Node const& n) { return cut(n->getNodeValue(), 4096); }; }},
    {"getNodeValue", "that of an instruction begins with its target",
      [](Hooks& h)
      {
        h.node_value = [](Node const& n) {
          return is<axmProcessingInstruction>(n) ? n->getNodeName() + APSTRING(" ") + n->getNodeValue()
                                                 : n->getNodeValue();
        };
      }},
    {"getParentNode", "a document is its own",
      [](Hooks& h) { h.parent = [](Node const& n) { return is<axmDocument>(n) ? n : n->getParentNode(); }; }},
    {"getParentNode", "an attribute that was taken out has the root",
      [](Hooks& h)
      {
        h.parent = [](Node const& n) -> Node
        { return is_attribute(n) ? Node(n->getOwnerDocument()->getDocumentElement()) : n->getParentNode(); };
      }},
    {"getChildNodes", "a document has no list",
      [](Hooks& h) { h.children = [](Node const& n) { return is<axmDocument>(n) ? List() : n->getChildNodes(); }; }},
    {"getChildNodes", "an element far down has no list",
      [](Hooks& h) { h.children = [](Node const& n) { return depth_of(n) > 3 ? List() : n->getChildNodes(); }; }},
    {"getOwnerDocument", "a text has none",
      [](Hooks& h)
      { h.owner = [](Node const& n) { return is<axmTextNode>(n) ? Document() : n->getOwnerDocument(); }; }},
    {"getOwnerDocument", "a removed node has none",
      [](Hooks& h)
      {
        h.owner = [](Node const& n)
        {
          bool const is_loose = n->getParentNode() == nullptr && is<axmElement>(n) && n->getFirstChild() != nullptr;
          return is_loose ? Document() : n->getOwnerDocument();
        };
      }},
    {"insertBefore", "nothing before something is an exception",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        {
          if (child == nullptr)
            throw std::invalid_argument("no child");
          return n->insertBefore(child, before);
        };
      }},
    {"insertBefore", "a document is told as inserted",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return child != nullptr && is<axmDocument>(child) ? child : n->insertBefore(child, before); };
      }},
    {"insertBefore", "an attribute is told as inserted",
      [](Hooks& h)
      {
        h.insert = [](Node const& n, Node const& child, Node const& before)
        { return child != nullptr && is_attribute(child) ? child : n->insertBefore(child, before); };
      }},
    {"replaceChild", "nothing in the place of a child takes the child out",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        { return child == nullptr && old != nullptr ? n->removeChild(old) : n->replaceChild(child, old); };
      }},
    {"replaceChild", "what cannot stand there takes the child out all the same",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_wrong = child != nullptr && old != nullptr && is<axmDocument>(child);
          return is_wrong ? n->removeChild(old) : n->replaceChild(child, old);
        };
      }},
    {"replaceChild", "the root by a text is told as done",
      [](Hooks& h)
      {
        h.replace = [](Node const& n, Node const& child, Node const& old)
        {
          bool const is_wrong = child != nullptr && is<axmTextNode>(child) && is<axmDocument>(n);
          return is_wrong ? old : n->replaceChild(child, old);
        };
      }},
    {"removeChild", "nothing is the first child",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child)
        { return n->removeChild(child == nullptr ? n->getFirstChild() : child); };
      }},
    {"removeChild", "an attribute is a child",
      [](Hooks& h)
      {
        h.remove = [](Node const& n, Node const& child) -> Node
        {
          auto const map = n->getAttributes();
          bool const is_one = child != nullptr && map != nullptr && is_attribute(child);
          Node const found = is_one ? map->getNamedItem(child->getNodeName()) : nullptr;
          return found != nullptr && *found == *child ? map->removeNamedItem(child->getNodeName())
                                                      : n->removeChild(child);
        };
      }},
    {"appendChild", "nothing is an exception",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        {
          if (child == nullptr)
            throw std::invalid_argument("no child");
          return n->appendChild(child);
        };
      }},
    {"appendChild", "a document is told as appended",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return child != nullptr && is<axmDocument>(child) ? child : n->appendChild(child); };
      }},
    {"appendChild", "to a text is told as done",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return is<axmTextNode>(n) && child != nullptr ? child : n->appendChild(child); };
      }},
    {"appendChild", "to an attribute is told as done",
      [](Hooks& h)
      {
        h.append = [](Node const& n, Node const& child)
        { return is_attribute(n) && child != nullptr ? child : n->appendChild(child); };
      }},
    {"hasChildNodes", "a text has some",
      [](Hooks& h) { h.has_children = [](Node const& n) { return is<axmTextNode>(n) || n->hasChildNodes(); }; }},
    {"hasChildNodes", "an instruction has some",
      [](Hooks& h)
      { h.has_children = [](Node const& n) { return is<axmProcessingInstruction>(n) || n->hasChildNodes(); }; }},
    {"hasAttributes", "a document has those of its root",
      [](Hooks& h)
      {
        h.has_attributes = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->hasAttributes() : n->hasAttributes();
        };
      }},
    {"hasAttributes", "a text has some",
      [](Hooks& h) { h.has_attributes = [](Node const& n) { return is<axmTextNode>(n) || n->hasAttributes(); }; }},
    {"getAttributes", "a document has the map of its root",
      [](Hooks& h)
      {
        h.attributes = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->getAttributes() : n->getAttributes();
        };
      }},
    {"operator==", "only two of one kind of pointer are equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const* left, axmNode const* right, Node const& a, Node const& b)
        { return left != right && depth_of(a) > 2 ? false : *a == *b; };
      }},
    {"operator==", "every empty text is equal",
      [](Hooks& h)
      {
        h.equal = [](axmNode const*, axmNode const*, Node const& a, Node const& b)
        {
          return *a == *b ||
                 (is<axmTextNode>(a) && is<axmTextNode>(b) && a->getNodeValue().empty() && b->getNodeValue().empty());
        };
      }},
    {"get_text", "a document has none",
      [](Hooks& h) { h.node_text = [](Node const& n) { return is<axmDocument>(n) ? apString() : n->get_text(); }; }},
    {"get_text", "comments count where there is no text",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          return first != nullptr && is<axmCommentNode>(first) && n->get_text().empty() ? first->getNodeValue()
                                                                                        : n->get_text();
        };
      }},
    {"get_text", "instructions count",
      [](Hooks& h)
      {
        h.node_text = [](Node const& n)
        {
          Node const first = n->getFirstChild();
          return first != nullptr && is<axmProcessingInstruction>(first) ? first->getNodeValue() + n->get_text()
                                                                         : n->get_text();
        };
      }},
    {"get_text", "an attribute has none",
      [](Hooks& h) { h.node_text = [](Node const& n) { return is_attribute(n) ? apString() : n->get_text(); }; }},
    {"set_text", "an attribute stays as it is",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (!is_attribute(n))
            n->set_text(text);
        };
      }},
    {"set_text", "an instruction stays as it is",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          if (!is<axmProcessingInstruction>(n))
            n->set_text(text);
        };
      }},
    {"set_text", "what was there loses its content",
      [](Hooks& h)
      {
        h.set_text = [](Node const& n, apString const& text)
        {
          for (Node child = n->getFirstChild(); child != nullptr; child = child->getNextSibling())
            while (child->getFirstChild() != nullptr)
              child->removeChild(child->getFirstChild());
          n->set_text(text);
        };
      }},
    {"get_xml", "that of an element begins with a declaration",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        { return is<axmElement>(n) ? APSTRING("<?xml version=\"1.0\"?>") + n->get_xml() : n->get_xml(); };
      }},
    {"get_xml", "a document has that of its root",
      [](Hooks& h)
      {
        h.xml = [](Node const& n)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->get_xml() : n->get_xml();
        };
      }},
    {"get_attribute", "a document has those of its root",
      [](Hooks& h)
      {
        h.get_string = [](Node const& n, apString const& name, apString& value)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->get_attribute(name, value) : n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "of a text, an int is there and zero",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          if (!is<axmTextNode>(n))
            return n->get_attribute(name, value);
          value = 0;
          return true;
        };
      }},
    {"get_attribute", "an int may be hexadecimal",
      [](Hooks& h)
      {
        h.get_int = [](Node const& n, apString const& name, int& value)
        {
          apString text;
          if (n->get_attribute(name, text) && text == APSTRING("0x10"))
          {
            value = 16;
            return true;
          }
          return n->get_attribute(name, value);
        };
      }},
    {"get_attribute", "a failing text is made empty",
      [](Hooks& h)
      {
        h.get_string = [](Node const& n, apString const& name, apString& value)
        {
          bool const got = n->get_attribute(name, value);
          if (!got)
            value = apString();
          return got;
        };
      }},
    {"set_attribute", "an infinity is refused",
      [](Hooks& h)
      {
        h.set_double = [](Node const& n, apString const& name, double value)
        { return value - value == 0 && n->set_attribute(name, value); };
      }},
    {"set_attribute", "an unsigned int beyond the largest int is refused",
      [](Hooks& h)
      {
        h.set_unsigned = [](Node const& n, apString const& name, unsigned int value)
        { return value <= 2147483647U && n->set_attribute(name, value); };
      }},
    {"set_attribute", "a bool on a comment is told as set",
      [](Hooks& h)
      {
        h.set_bool = [](Node const& n, apString const& name, bool value)
        { return is<axmCommentNode>(n) || n->set_attribute(name, value); };
      }},
    {"set_attribute", "on a document it is set on the root",
      [](Hooks& h)
      {
        h.set_int = [](Node const& n, apString const& name, int value)
        {
          auto const document = std::dynamic_pointer_cast<axmDocument>(n);
          auto const root = document != nullptr ? document->getDocumentElement() : nullptr;
          return root != nullptr ? root->set_attribute(name, value) : n->set_attribute(name, value);
        };
      }},
    {"createElement", "a name with a prefix is none",
      [](Hooks& h)
      {
        h.create_element = [](Document const& document, apString const& name) -> Node
        { return name.find(APSTRING(":")) >= 0 ? nullptr : Node(document->createElement(name)); };
      }},
    {"createComment", "data with two hyphens is none",
      [](Hooks& h)
      {
        h.create_comment = [](Document const& document, apString const& data) -> Node
        { return data.find(APSTRING("--")) >= 0 ? nullptr : Node(document->createComment(data)); };
      }},
    {"createTextNode", "characters that XML does not have are left out",
      [](Hooks& h)
      {
        h.create_text = [](Document const& document, apString const& data) -> Node
        { return document->createTextNode(data == apString(L"\x01") ? apString() : data); };
      }},
    {"loadDocument", "from a file UTF-16 is not understood",
      [](Hooks& h)
      {
        refuse_files_unless(h, [](apByteArray const& data)
          { return data.size() < 2 || (data.data()[0] != '\xFE' && data.data()[0] != '\xFF'); });
      }},
    {"loadDocument", "from a file a mark before UTF-8 is no XML",
      [](Hooks& h) {
        refuse_files_unless(h, [](apByteArray const& data) { return data.size() == 0 || data.data()[0] != '\xEF'; });
      }},
    {"loadDocument", "from a file line ends of two characters stay so",
      [](Hooks& h) { put_into_files(h, [](std::string const& text) { return with(text, "a\r\nb", "a&#13;\nb"); }); }},
    {"loadDocument", "a file ends with 65536 bytes",
      [](Hooks& h) { put_into_files(h, [](std::string const& text) { return text.substr(0, 65536); }); }},
    {"loadDocument", "a file ends at a zero byte",
      [](Hooks& h) { put_into_files(h, [](std::string const& text) { return text.substr(0, text.find('\0')); }); }},
    {"loadDocument", "a folder is an empty document",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          bool const is_taken = document == nullptr && is_folder(path);
          if (is_taken)
            error = axmParseError();
          return is_taken ? factory->createDocument(APSTRING("r")) : document;
        };
      }},
    {"loadDocument", "the error of a file names another one",
      [](Hooks& h)
      {
        h.load_file = [](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(path, options, error);
          if (document == nullptr)
            error.set_url(APSTRING("another.xml"));
          return document;
        };
      }},
    {"loadDocument", "columns are bytes",
      [](Hooks& h)
      {
        h.load_bytes =
          [](Factory const& factory, apByteArray const& data, axmLoadOptions const& options, axmParseError& error)
        {
          Document const document = factory->loadDocument(data, options, error);
          int more = 0;
          for (std::size_t at = 0; at < data.size() && error.line_number() == 1; ++at)
            more += (static_cast<unsigned char>(data.data()[at]) & 0xC0U) == 0x80U ? 1 : 0;
          if (document == nullptr && error.column_number() > 0)
            error.set_column_number(error.column_number() + more);
          return document;
        };
      }},
    {"loadDocument", "expansions are counted from load to load",
      [](Hooks& h)
      {
        auto const used = std::make_shared<bool>(false);
        h.load_bytes = [used](
                         Factory const& factory, apByteArray const& data, axmLoadOptions options, axmParseError& error)
        {
          bool const has_any = holds(data, "&a;");
          if (has_any && *used)
            options.set_entity_expansion_limit(options.entity_expansion_limit() - 1);
          *used = *used || has_any;
          return factory->loadDocument(data, options, error);
        };
      }},
    {"loadDocument", "a type that the document names is not looked at", [](Hooks& h) { leave_alone(h, "xsi:type="); }},
    {"loadDocument", "an element may be nil whatever the schema says",
      [](Hooks& h) { leave_alone(h, "xsi:nil='true'"); }},
    {"loadDocument", "values of prefixed elements are not looked at", [](Hooks& h) { leave_alone(h, "<p:"); }},
    {"loadDocument", "a document with references is not validated", [](Hooks& h) { leave_alone(h, "ref="); }},
    {"loadDocument", "dates are not looked at", [](Hooks& h) { leave_alone(h, "2024-"); }},
    {"saveDocument", "instructions are left out",
      [](Hooks& h)
      {
        put_into_output(h,
          [](std::string const& text)
          {
            std::size_t const begin = text.find("<?", 2);
            std::size_t const end = begin == std::string::npos ? begin : text.find("?>", begin);
            return end == std::string::npos ? text : text.substr(0, begin) + text.substr(end + 2);
          });
      }},
    {"saveDocument", "a tab in an attribute stands as it is",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, "&#9;", "\t"); }); }},
    {"saveDocument", "a zero byte follows the document",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return text + '\0'; }); }},
    {"saveDocument", "the end of a CDATA section stands as it is",
      [](Hooks& h) { put_into_output(h, [](std::string const& text) { return with(text, "]]&gt;", "]]>"); }); }},
    {"saveDocument", "it is ISO-8859-1",
      [](Hooks& h)
      {
        put_into_output(h,
          [](std::string const& text)
          {
            std::string const latin =
              with(with(text, "\xC3\xA4", "\xE4"), "encoding=\"UTF-8\"", "encoding=\"ISO-8859-1\"");
            return latin.find("\xE4") != std::string::npos ? latin : text;
          });
      }},
    {"saveDocument", "a folder is told as saved to",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        { return is_folder(path) || factory->saveDocument(document, path); };
      }},
  };
  return faults;
}
