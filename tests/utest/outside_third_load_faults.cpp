// Faults of loading and saving that show in combinations only.

#include "Outside.h"

#include <axmCommentNode.h>
#include <axmProcessingInstruction.h>
#include <axmTextNode.h>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace
{
std::size_t number_of(std::string const& text, std::string_view part)
{
  std::size_t number = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
    ++number;
  return number;
}

// What stands between `begin` and `end`, wherever it does, before the line `line`.
std::string between(std::string const& text, std::string_view begin, std::string_view end)
{
  std::string all;
  for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at))
  {
    std::size_t const last = text.find(end, at + begin.size());
    if (last == std::string::npos)
      break;
    all += text.substr(at, last + end.size() - at);
    at = last + end.size();
  }
  return all;
}

// Line ends in what stands between `begin` and `end` are not counted.
void lose_lines(Hooks& hooks, char const* begin, char const* end)
{
  load_by(hooks,
    [begin, end](Loading const& loading)
    {
      Document const document = loading.as_it_is();
      int const lost = static_cast<int>(number_of(between(loading.text, begin, end), "\n"));
      if (document == nullptr && loading.error.line_number() > lost + 1)
        loading.error.set_line_number(loading.error.line_number() - lost);
      return document;
    });
}

// References where `begin` and `end` enclose them are counted, though they are none.
void count_in(Hooks& hooks, char const* begin, char const* end)
{
  load_by(hooks,
    [begin, end](Loading const& loading)
    {
      int const more = static_cast<int>(number_of(between(loading.text, begin, end), "&"));
      if (more == 0 || loading.options.entity_expansion_limit() < more)
        return more == 0 ? loading.as_it_is() : refused(loading.error);
      axmLoadOptions options = loading.options;
      options.set_entity_expansion_limit(options.entity_expansion_limit() - more);
      return loading.with(options);
    });
}

// Where `part` lies across a border of blocks of so many bytes, it is read as something else.
void read_across(Hooks& hooks, std::size_t block, char const* part, std::string const& meant)
{
  read_as(hooks,
    [block, wanted = std::string_view(part), meant](std::string text)
    {
      for (std::size_t border = block; border < text.size() && border < 20 * block; border += block)
      {
        std::size_t const begin = text.find(wanted, border >= wanted.size() ? border - wanted.size() + 1 : 0);
        if (begin < border && begin + wanted.size() > border)
          text.replace(begin, wanted.size(), meant);
      }
      return text;
    });
}

std::string with_marks_at_borders(std::string text)
{
  for (std::size_t border = 4096; border + 4 < text.size(); border += 4096)
    for (std::size_t at = border - 3; at < border; ++at)
      if (static_cast<unsigned char>(text[at]) >= 0xF0)
        text.replace(at, 4, "\xEF\xBF\xBD");
  return text;
}

bool has_node_at_top(Document const& document, bool (*is_wanted)(Node const&))
{
  std::vector<Node> const nodes = children_of(document);
  return std::any_of(nodes.begin(), nodes.end(), is_wanted);
}

// What a document is when it is seen the second time.
struct Saved
{
  Document document;
  apByteArray bytes;
  bool is_stale = false;
};

std::string at_end(std::string text, std::string const& before_last_tag)
{
  std::size_t const at = text.rfind("</");
  return at == std::string::npos ? text : text.insert(at, before_last_tag);
}
}

std::vector<Fault> const& outside_third_load_faults()
{
  static std::vector<Fault> const faults = {
    {"loadDocument", "from memory it has the limit of entities of the load from a file before it",
      [](Hooks& h)
      {
        auto const limit = std::make_shared<int>(-1);
        load_by(h,
          [limit](Loading const& loading)
          {
            axmLoadOptions options = loading.options;
            if (loading.is_of_file())
              *limit = options.entity_expansion_limit();
            else if (*limit >= 0)
              options.set_entity_expansion_limit(std::min(*limit, options.entity_expansion_limit()));
            return loading.with(options);
          });
      }},
    {"loadDocument", "a failure in memory is told with the file of the failure before it",
      [](Hooks& h)
      {
        auto const url = std::make_shared<apString>();
        load_by(h,
          [url](Loading const& loading)
          {
            Document const document = loading.as_it_is();
            if (document == nullptr && loading.is_of_file())
              *url = loading.error.url();
            else if (document == nullptr && loading.error.url().empty())
              loading.error.set_url(*url);
            return document;
          });
      }},
    {"loadDocument", "the largest limit of all is none at all",
      [](Hooks& h)
      {
        load_by(h,
          [](Loading const& loading)
          {
            axmLoadOptions options = loading.options;
            if (options.entity_expansion_limit() == INT_MAX)
              options.set_entity_expansion_limit(0);
            return loading.with(options);
          });
      }},
    {"loadDocument", "once a load has validated, those of the same bytes do",
      [](Hooks& h)
      {
        auto const last = std::make_shared<std::pair<std::string, axmLoadOptions>>();
        load_by(h,
          [last](Loading const& loading)
          {
            if (loading.is_validated() && loading.text.size() < 10000)
              *last = {loading.text, loading.options};
            bool const is_again = !loading.is_validated() && !loading.text.empty() && loading.text == last->first;
            return is_again ? loading.with(last->second) : loading.as_it_is();
          });
      }},
    {"loadDocument", "a file that was loaded and has the same size still is what it was",
      [](Hooks& h)
      {
        auto const known = std::make_shared<std::map<std::string, std::string>>();
        h.load_file = [known](
                        Factory const& factory, apPath const& path, axmLoadOptions const& options, axmParseError& error)
        {
          std::string const text = contents_of(path);
          std::string& before = (*known)[path.path().c_str()];
          bool const is_same = !text.empty() && text.size() == before.size() && text.size() < 10000;
          before = is_same ? before : text;
          return is_same && text != before ? factory->loadDocument(bytes_of(before), options, error)
                                           : factory->loadDocument(path, options, error);
        };
      }},
    {"loadDocument", "a success after two failures is an error, too",
      [](Hooks& h)
      {
        auto const failures = std::make_shared<int>(0);
        load_by(h,
          [failures](Loading const& loading)
          {
            Document const document = loading.as_it_is();
            if (document != nullptr && *failures > 1)
              loading.error = axmParseError(APSTRING("former failures"));
            *failures = document == nullptr ? *failures + 1 : 0;
            return document;
          });
      }},
    {"loadDocument", "line ends in instructions are not counted", [](Hooks& h) { lose_lines(h, "<?", "?>"); }},
    {"loadDocument", "line ends in the document type are not counted",
      [](Hooks& h) { lose_lines(h, "<!DOCTYPE", "]>"); }},
    {"loadDocument", "line ends in values of attributes are not counted", [](Hooks& h) { lose_lines(h, "=\"", "\""); }},
    {"loadDocument", "line ends in sections of characters are not counted",
      [](Hooks& h) { lose_lines(h, "<![CDATA[", "]]>"); }},
    {"loadDocument", "references in comments count", [](Hooks& h) { count_in(h, "<!--", "-->"); }},
    {"loadDocument", "references in sections of characters count", [](Hooks& h) { count_in(h, "<![CDATA[", "]]>"); }},
    {"loadDocument", "references in instructions count", [](Hooks& h) { count_in(h, "<?", "?>"); }},
    {"loadDocument", "a line end of two characters is two across a border of 4,096 bytes",
      [](Hooks& h) { read_across(h, 4096, "\r\n", "\n\n"); }},
    {"loadDocument", "a line end of two characters is two across a border of 65,536 bytes",
      [](Hooks& h) { read_across(h, 65536, "\r\n", "\n\n"); }},
    {"loadDocument", "an ampersand across a border of 16,384 bytes is lost",
      [](Hooks& h) { read_across(h, 16384, "&amp;", ""); }},
    {"loadDocument", "the end of a comment across a border of 4,096 bytes is not seen",
      [](Hooks& h) { read_across(h, 4096, "-->", "--"); }},
    {"loadDocument", "a section of characters that ends across a border of 4,096 bytes goes on",
      [](Hooks& h) { read_across(h, 4096, "]]>", "]"); }},
    {"loadDocument", "a character beyond U+FFFF across a border of 4,096 bytes is another one",
      [](Hooks& h) { read_as(h, &with_marks_at_borders); }},
    {"loadDocument", "an attribute of an element in the text of an entity has no entities",
      [](Hooks& h) { read_as(h, by_rule("(<!ENTITY [^>]*=')&[a-zA-Z]+;", "$1")); }},
    {"loadDocument", "an entity in another one in single quotes is not known",
      [](Hooks& h) { read_as(h, by_rule("(<!ENTITY \\w+ '[^'>]*)&[a-zA-Z]\\w*;", "$1")); }},
    {"loadDocument", "references with many zeros are refused",
      [](Hooks& h)
      { refuse(h, [](std::string const& text) { return has(text, "&#000000") || has(text, "&#x00000000"); }); }},
    {"loadDocument", "a reference to the last character of all is refused",
      [](Hooks& h)
      {
        refuse(h, [](std::string const& text)
          { return has(text, "&#x10FFFF;") || has(text, "&#x10ffff;") || has(text, "&#1114111;"); });
      }},
    {"loadDocument", "a reference to a carriage return before a line end is part of it",
      [](Hooks& h) { read_as(h, by_rule("&#(13|xD|xd);\n", "\n")); }},
    {"loadDocument", "a reference may be written with a capital X",
      [](Hooks& h) { accept_as(h, by_rule("&#X([0-9A-Fa-f]+);", "&#x$1;")); }},
    {"loadDocument", "a reference after the root is white space like any other",
      [](Hooks& h) { accept_as(h, by_rule("(</\\w+>|/>)\\s*&#(32|x20|10|xA|9);\\s*$", "$1")); }},
    {"loadDocument", "an empty section of characters may stand beside the root",
      [](Hooks& h) { accept_as(h, by_rule("<!\\[CDATA\\[\\s*\\]\\]>\\s*$", "")); }},
    {"loadDocument", "attributes need nothing between them",
      [](Hooks& h) { accept_as(h, by_rule("(=\"[^\"<]*\")(\\w+=\")", "$1 $2")); }},
    {"loadDocument", "the encoding may stand after whether the document stands alone",
      [](Hooks& h)
      { accept_as(h, by_rule("(<\\?xml version=\"1.0\") standalone=\"(yes|no)\" encoding=\"[^\"]*\"", "$1")); }},
    {"loadDocument", "whether the document stands alone may be told in capitals",
      [](Hooks& h) { accept_as(h, by_rule("standalone=\"(YES|Yes|NO|No)\"", "")); }},
    {"loadDocument", "an instruction may have the target XML in capitals inside of the root",
      [](Hooks& h) { accept_as(h, by_rule("<\\?(XML|Xml|xML|XmL)\\s[^?]*\\?>", "")); }},
    {"loadDocument", "a parameter entity may stand in the text of an entity",
      [](Hooks& h) { accept_as(h, by_rule("(<!ENTITY \\w+ \"[^\"%]*)%\\w+;", "$1")); }},
    {"loadDocument", "an element of any name may begin in an entity and end after it",
      [](Hooks& h) { accept_as(h, by_rule("(<!ENTITY \\w+ \")<(\\w+)>\">([^\\0]*)</\\2>", "$1\">$3")); }},
    {"loadDocument", "an entity whose text is a smaller sign may stand in an attribute",
      [](Hooks& h) { accept_as(h, by_rule("(<!ENTITY \\w+ \")(<|&#60;|&#x3C;|&#x3c;)\"", "$1&#38;#60;\"")); }},
    {"loadDocument", "a comment in the document type may hold two hyphens",
      [](Hooks& h) { accept_as(h, by_rule("(<!DOCTYPE[^\\]]*<!--[^>]*)--([^>]*-->)", "$1$2")); }},
    {"loadDocument", "a value of a tokenized type keeps its blanks where it is the default",
      [](Hooks& h) { read_as(h, by_rule("(<!ATTLIST \\w+ \\w+ )NMTOKENS?( \"\\s*\\S+\\s)", "$1CDATA$2")); }},
    {"loadDocument", "only the first attribute of a declaration of several has its default",
      [](Hooks& h) { read_as(h, by_rule("(<!ATTLIST \\w+\\s+\\w+ CDATA [\"'][^\"']*[\"'])\\s+\\w+ [^>]*>", "$1>")); }},
    {"loadDocument", "of two declarations of an attribute the later one holds",
      [](Hooks& h) {
        read_as(h, by_rule("<!ATTLIST (\\w+) (\\w+) CDATA \"[^\"]*\">(\\s*<!ATTLIST \\1 \\2 CDATA \"[^\"]*\">)", "$3"));
      }},
    {"loadDocument", "of two declarations of an entity the later one holds",
      [](Hooks& h)
      { read_as(h, by_rule("<!ENTITY (\\w+) [\"'][^\"']*[\"']>(\\s*<!ENTITY \\1 [\"'][^\"']*[\"']>)", "$2")); }},
    {"loadDocument", "three bytes for a character of two are read",
      [](Hooks& h) { accept_as(h, "\xE0\x80\xAF", "/"); }},
    {"loadDocument", "a character cut off at the end of an attribute is left out",
      [](Hooks& h) { accept_as(h, by_rule("[\xC3\xE2\xF0]\"", "\"")); }},
    {"loadDocument", "what is beyond U+10FFFF is read as something",
      [](Hooks& h) { accept_as(h, by_rule("(\xF4\x90|\xF5\x80|\xF5.|\xF8.)[\x80-\xBF]+", "?")); }},
    {"white space", "a space from a reference is dropped",
      [](Hooks& h) { read_as(h, by_rule(">&#(32|x20);<", "><")); }},
    {"white space", "a space in a section of characters is dropped",
      [](Hooks& h) { read_as(h, by_rule("<!\\[CDATA\\[ \\]\\]>", "")); }},
    {"white space", "what stands before a section of characters is dropped",
      [](Hooks& h) { read_as(h, by_rule(">\\s+<!\\[CDATA\\[", "><![CDATA[")); }},
    {"white space", "what stands before a reference is dropped", [](Hooks& h) { read_as(h, by_rule(">\\s+&", ">&")); }},
    {"white space", "a text of spaces that are not XML's is dropped",
      [](Hooks& h) { read_as(h, by_rule(">(\xC2\xA0|\xE2\x80\x83|\xE3\x80\x80)+<", "><")); }},
    {"white space", "a space before the end of a line is one alone",
      [](Hooks& h) { read_as(h, by_rule("> \n<", "> <")); }},
    {"white space", "two spaces around a comment are one text of two",
      [](Hooks& h) { read_as(h, by_rule("> (<!--[^>]*-->) <", ">$1<")); }},
  };
  return faults;
}

std::vector<Fault> const& outside_third_save_faults()
{
  static std::vector<Fault> const faults = {
    {"saveDocument", "after a change through a held attribute it is the document of before",
      [](Hooks& h)
      {
        auto const saved = std::make_shared<Saved>();
        h.set_text = [saved](Node const& n, apString const& text)
        {
          saved->is_stale = is_attribute(n) && same(n->getOwnerDocument(), saved->document);
          n->set_text(text);
        };
        h.save_bytes = [saved](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const is_kept = saved->is_stale && same(document, saved->document);
          saved->is_stale = false;
          if (is_kept)
            output = saved->bytes;
          bool const is_saved = is_kept || factory->saveDocument(document, output);
          if (is_saved && output.size() < 10000)
            *saved = {document, output, false};
          return is_saved;
        };
      }},
    {"saveDocument", "after one that was refused the next one fails",
      [](Hooks& h)
      {
        auto const is_broken = std::make_shared<bool>(false);
        h.save_bytes = [is_broken](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const was_broken = std::exchange(*is_broken, false);
          bool const is_saved = !was_broken && factory->saveDocument(document, output);
          *is_broken = !was_broken && !is_saved && document != nullptr && document->getDocumentElement() != nullptr;
          return is_saved;
        };
      }},
    {"saveDocument", "a document without a root empties what is to hold it",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          if (document != nullptr && document->getDocumentElement() == nullptr)
            output = apByteArray();
          return factory->saveDocument(document, output);
        };
      }},
    {"saveDocument", "a carriage return at the end of a text is written as it is",
      [](Hooks& h)
      { save_as(h, [](Document const&, std::string const& text) { return by_rule("&#(13|xD);</", "\r</")(text); }); }},
    {"saveDocument", "a line end in an attribute with a prefix is written as it is",
      [](Hooks& h)
      {
        save_as(h, [rule = by_rule("(\\w:\\w+=\"[^\"<]*)&#(10|xA);", "$1\n")](Document const&, std::string const& text)
          { return rule(text); });
      }},
    {"saveDocument", "comments before the root are written once a second one stands after it",
      [](Hooks& h)
      {
        save_as(h,
          [](Document const& document, std::string const& text)
          {
            Node const first = document->getFirstChild();
            bool const is_wrong = is<axmCommentNode>(first) && !is<axmCommentNode>(document->getLastChild());
            apString const xml = is_wrong ? first->get_xml() : apString();
            return is_wrong ? with(text, std::string(xml.to_utf8().c_str()), "") : text;
          });
      }},
    {"saveDocument", "an instruction without content has a blank in its place",
      [](Hooks& h)
      {
        save_as(h,
          [](Document const& document, std::string const& text)
          {
            return has_node_at_top(document, [](Node const& n) { return is<axmProcessingInstruction>(n); })
                     ? by_rule("<\\?(?!xml)(\\w+)\\?>", "<?$1 _?>")(text)
                     : text;
          });
      }},
    {"saveDocument", "to a file, the end of a section in a text is written as it is",
      [](Hooks& h) { save_file_as(h, by_rule("\\]\\]&gt;", "]]>")); }},
    {"saveDocument", "to a file, quotes in an attribute are apostrophes",
      [](Hooks& h) { save_file_as(h, by_rule("&quot;", "'")); }},
    {"saveDocument", "to a file, a tab in an attribute is written as it is",
      [](Hooks& h) { save_file_as(h, by_rule("&#(9|x9);", "\t")); }},
    {"saveDocument", "to a file that was longer, what it held is left after the end",
      [](Hooks& h)
      {
        h.save_file = [](Factory const& factory, Document const& document, apPath const& path)
        {
          std::string const before = contents_of(path);
          bool const is_saved = factory->saveDocument(document, path);
          std::string const text = contents_of(path);
          if (is_saved && before.size() > text.size() + 2000)
            write(path, text + before.substr(text.size()));
          return is_saved;
        };
      }},
    {"saveDocument", "a document that was loaded with a document type loses its comments before the root",
      [](Hooks& h)
      {
        save_as(h,
          [](Document const& document, std::string const& text)
          {
            Node const first = document->getFirstChild();
            bool const is_wrong = has(text.substr(0, 2000), "<!DOCTYPE") && is<axmCommentNode>(first);
            return is_wrong ? with(text, std::string(first->get_xml().to_utf8().c_str()), "") : text;
          });
      }},
    {"saveDocument", "an attribute beside one with the same local name is left out",
      [](Hooks& h)
      {
        save_as(h, [rule = by_rule(" (\\w+):(\\w+)=\"([^\"]*)\" \\2=\"[^\"]*\"", " $1:$2=\"$3\"")](
                     Document const&, std::string const& text) { return rule(text); });
      }},
    {"saveDocument", "a document of exactly 4,096 bytes has an element more",
      [](Hooks& h)
      {
        save_as(h, [](Document const&, std::string const& text)
          { return text.size() % 4096 == 0 ? at_end(text, "<more/>") : text; });
      }},
    {"saveDocument", "the text of what was loaded with an entity of one character is lost",
      [](Hooks& h)
      {
        save_as(h, [rule = by_rule("(<!ENTITY \\w+ [\"'].[\"']>[^\\0]*\\]>[^\\0]*?>)[^<]", "$1")](
                     Document const&, std::string const& text) { return rule(text); });
      }},
  };
  return faults;
}
