#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

/// Makes documents with everything in them that a reader could stumble over; some are not well-formed.
class RandomDocument
{
public:
  explicit RandomDocument(unsigned seed) : random(seed) {}

  std::string next()
  {
    text.clear();
    if (below(3) == 0)
      text += "\xEF\xBB\xBF";
    if (below(2) == 0)
      text += "<?xml version='1." + std::string(below(5) == 0 ? "1" : "0") + "'?>\n";
    if (below(2) == 0)
      text += "<!DOCTYPE a [<!ENTITY e 'E&#38;lt;'><!ENTITY t '<b k=\"&#39;t\">in</b>x<c/>'><!ENTITY s ' '>"
              "<!ATTLIST a d CDATA 'default' k NMTOKENS #IMPLIED><!ATTLIST b xml:space CDATA #FIXED 'preserve'>]>";
    else
      text += "<!-- <a> -->";
    element(0);
    text += below(4) == 0 ? "<!-- end --><?end?>\n" : "\n";
    if (below(5) == 0)
      spoil();
    return text;
  }

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); }

private:
  std::string one_of(std::vector<std::string> const& all) { return all[below(all.size())]; }

  void element(int depth)
  {
    std::string const name = depth == 0 ? "a" : one_of({"a", "aa", "b", "c", "p:a", "a-b", "\xC3\xA4"});
    text += '<' + name;
    if (depth == 0)
      text += " xmlns:p='urn:p'";
    std::vector<std::string> attributes = {"k", "kk", "p:k", "d", "xml:space", "xmlns"};
    for (std::string const& attribute : attributes)
      if (below(4) == 0)
        text += one_of({" ", "\n\t"}) + attribute + one_of({"=", " = "}) + value_of(attribute);
    text += one_of({"", "", " ", "\n"});
    if (depth > 5 || below(4) == 0)
    {
      text += below(2) == 0 ? "/>" : "></" + name + '>';
      return;
    }
    text += '>';
    for (std::size_t parts = below(6); parts > 0; --parts)
      if (below(2) == 0)
        element(depth + 1);
      else
        text += one_of({"text", " ", "\r\n", "&lt;", "&#65;&#x20AC;", "<![CDATA[<b k='no'>]]>", "<![CDATA[]]>",
          "<!--<c>-->", "<?pi <c/>?>", "&e;", "&t;", "&s;", "]]", "\xF0\x9D\x84\x9E", "more > text", "'\""});
    text += "</" + name + one_of({">", ">", " >"});
  }

  std::string value_of(std::string const& attribute)
  {
    if (attribute == "xml:space")
      return "'preserve'";
    if (attribute == "xmlns")
      return one_of({"'urn:x'", "''"});
    return one_of(
      {"''", "\"it's\"", "' a  b '", "'>'", "'/>'", "'&lt;&amp;&#10;'", "'a\n\tb'", "'\xC3\xA9'", "'k=&quot;1&quot;'"});
  }

  void spoil()
  {
    std::size_t const at = below(text.size());
    switch (below(3))
    {
    case 0:
      text.erase(at, 1 + below(4));
      return;
    case 1:
      text.insert(at, one_of({"<", ">", "&", "</a>", "<a>", "\"", "]]>", "--", "\x01", "\xC3", "<b"}));
      return;
    default:
      text.resize(at);
    }
  }

  std::mt19937 random;
  std::string text;
};
