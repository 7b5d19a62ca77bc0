#include "Generator.h"

unsigned Generator::pick(unsigned below) noexcept
{
  // Xorshift, as what the standard library's distributions give differs between systems.
  state ^= state << 13;
  state ^= state >> 17;
  state ^= state << 5;
  return state % below;
}

std::string Generator::one_of(std::initializer_list<char const*> choices)
{
  return choices.begin()[pick(static_cast<unsigned>(choices.size()))];
}

std::string Generator::document()
{
  std::string text = chance(30) ? "<!--before--><?pi one?>" : "";
  text += "<a" + attributes(true) + ">" + content(0) + "</a>";
  return text + (chance(30) ? "<?go behind?><!--end-->" : "");
}

std::string Generator::content(int depth)
{
  std::string text;
  unsigned const parts = depth > 4 ? pick(2) : pick(5) + (depth == 0 ? 3 : 0);
  for (unsigned i = 0; i < parts; ++i)
  {
    switch (pick(10))
    {
    case 0:
      text += one_of({"<!--one-->", "<!--2-->", "<!--a-->"});
      break;
    case 1:
      text += one_of({"<?pi one?>", "<?pi?>", "<?go 3?>"});
      break;
    case 2:
      text += one_of({"1", "2", "10", "-3.5", "one", "two", " a  b ", "\xC3\xA4\xE2\x82\xAC", "&lt;&amp;"});
      break;
    case 3:
      text += one_of({"<![CDATA[1]]>", "<![CDATA[<x>]]>", "two<![CDATA[ ]]>2", "<![CDATA[a]]><![CDATA[b]]>"});
      break;
    default:
      text += element(depth + 1);
    }
  }
  return text;
}

std::string Generator::element(int depth)
{
  std::string const name = one_of({"a", "a", "b", "b", "c", "p:a", "p:b", "q:b"});
  std::string const text = content(depth);
  return "<" + name + attributes(false) + (text.empty() ? "/>" : ">" + text + "</" + name + ">");
}

std::string Generator::attributes(bool is_root)
{
  std::string text;
  if (is_root)
    text += chance(20) ? " xmlns='urn:d' xmlns:p='urn:p' xmlns:q='urn:q'" : " xmlns:p='urn:p' xmlns:q='urn:q'";
  else if (chance(8))
    text += one_of({" xmlns:p='urn:q'", " xmlns:q='urn:p'", " xmlns='urn:p'", " xmlns=''", " xmlns:r='urn:r'"});
  if (chance(40))
    text += one_of({" x='1'", " x='2'", " x='one'", " x=''"});
  if (chance(25))
    text += one_of({" y='1'", " y='-3.5'", " y=' a  b '"});
  if (chance(15))
    text += one_of({" p:x='1'", " p:x='two'"});
  if (chance(10))
    text += one_of({" xml:lang='en'", " xml:lang='de-AT'", " xml:lang='EN-us'", " xml:lang=''"});
  if (chance(10))
    text += " xml:id='i" + std::to_string(pick(1000000)) + "'";
  return text;
}

std::string Generator::expression(int depth)
{
  switch (pick(8))
  {
  case 0:
    return boolean(depth);
  case 1:
    return number(depth);
  case 2:
    return string(depth);
  default:
    return node_set(depth);
  }
}

std::string Generator::any(int depth)
{
  switch (pick(4))
  {
  case 0:
    return boolean(depth);
  case 1:
    return number(depth);
  case 2:
    return string(depth);
  default:
    return node_set(depth);
  }
}

std::string Generator::node_set(int depth)
{
  if (depth <= 0)
    return one_of({"a", "b", "//b", ".", "..", "@x", "@*", "*", "//a/b", "node()", "text()"});
  switch (pick(12))
  {
  case 0:
    return node_set(depth - 1) + one_of({"|", " | "}) + node_set(depth - 1);
  case 1:
    return "(" + node_set(depth - 1) + ")" + predicates(depth - 1) + (chance(50) ? "/" + steps(depth - 1) : "");
  case 2:
    return "(" + node_set(depth - 1) + ")//" + step(depth - 1);
  case 3:
    return "id(" + (chance(50) ? node_set(depth - 1) : string(depth - 1)) + ")" + predicates(depth - 1);
  default:
    return path(depth);
  }
}

std::string Generator::path(int depth)
{
  switch (pick(6))
  {
  case 0:
    return "/" + (chance(90) ? steps(depth) : "");
  case 1:
  case 2:
    return "//" + steps(depth);
  default:
    return steps(depth);
  }
}

std::string Generator::steps(int depth)
{
  std::string text = step(depth);
  for (unsigned more = pick(3); more > 0; --more)
    text += (chance(25) ? "//" : "/") + step(depth);
  return text;
}

std::string Generator::step(int depth)
{
  switch (pick(10))
  {
  case 0:
    return ".";
  case 1:
    return "..";
  case 2:
    return "@" + one_of({"x", "y", "*", "p:x", "node()", "xml:lang"}) + predicates(depth - 1);
  case 3:
  case 4:
  case 5:
    return node_test() + predicates(depth - 1);
  default:
    return one_of({"ancestor::", "ancestor-or-self::", "child::", "descendant::", "descendant-or-self::", "following::",
             "following-sibling::", "namespace::", "parent::", "preceding::", "preceding-sibling::", "self::",
             "attribute::"}) +
           node_test() + predicates(depth - 1);
  }
}

std::string Generator::node_test()
{
  return one_of({"a", "a", "b", "b", "c", "*", "*", "p:a", "p:b", "p:*", "q:b", "q:*", "node()", "node()", "text()",
    "comment()", "processing-instruction()", "processing-instruction('pi')"});
}

std::string Generator::predicates(int depth)
{
  if (depth < 0)
    return {};
  std::string text;
  while (chance(35))
  {
    switch (pick(8))
    {
    case 0:
      text += "[" + one_of({"1", "2", "3", "0", "1.5"}) + "]";
      break;
    case 1:
      text += "[last()]";
      break;
    case 2:
      text += "[position()" + one_of({"=1", "<3", ">1", "!=2", "=last()", "=last()-1", " mod 2=1"}) + "]";
      break;
    case 3:
      text += "[" + number(depth - 1) + "]";
      break;
    case 4:
      text += "[" + node_set(depth - 1) + "]";
      break;
    default:
      text += "[" + boolean(depth - 1) + "]";
    }
  }
  return text;
}

std::string Generator::boolean(int depth)
{
  if (depth <= 0)
    return one_of({"true()", "false()", "@x", "b", "@x=1", ".='1'", "position()=1"});
  std::string const left = any(depth - 1);
  switch (pick(10))
  {
  case 0:
    return boolean(depth - 1) + " and " + boolean(depth - 1);
  case 1:
    return "(" + boolean(depth - 1) + " or " + boolean(depth - 1) + ")";
  case 2:
    return "not(" + any(depth - 1) + ")";
  case 3:
    return "boolean(" + any(depth - 1) + ")";
  case 4:
    return one_of({"contains(", "starts-with("}) + string(depth - 1) + ", " + string(depth - 1) + ")";
  case 5:
    return "lang(" + one_of({"'en'", "'EN'", "'de'", "'en-US'", "''"}) + ")";
  default:
    return "(" + left + ")" + one_of({"=", "!=", "<", "<=", ">", ">=", " = "}) + "(" + any(depth - 1) + ")";
  }
}

std::string Generator::number(int depth)
{
  if (depth <= 0)
    return one_of({"0", "1", "2", "3", "0.5", "1.5", "-1", "position()", "last()", "count(*)", "."});
  switch (pick(12))
  {
  case 0:
    return "count(" + node_set(depth - 1) + ")";
  case 1:
    return "sum(" + node_set(depth - 1) + ")";
  case 2:
    return "string-length(" + (chance(30) ? "" : string(depth - 1)) + ")";
  case 3:
    return one_of({"floor(", "ceiling(", "round("}) + number(depth - 1) + ")";
  case 4:
    return "number(" + (chance(20) ? "" : any(depth - 1)) + ")";
  case 5:
    return "-(" + number(depth - 1) + ")";
  case 6:
    return "--(" + number(depth - 1) + ")";
  default:
    return "(" + number(depth - 1) + ")" + one_of({" + ", " - ", " * ", " div ", " mod "}) + "(" + number(depth - 1) +
           ")";
  }
}

std::string Generator::string(int depth)
{
  if (depth <= 0)
    return one_of({"''", "'a'", "\"1\"", "'one'", "'tw'", "' a  b '", "'\xC3\xA4\xE2\x82\xAC'", "name()", "string()",
      "local-name()"});
  switch (pick(12))
  {
  case 0:
    return "string(" + any(depth - 1) + ")";
  case 1:
    return "concat(" + string(depth - 1) + ", " + any(depth - 1) + ")";
  case 2:
    return one_of({"name(", "local-name(", "namespace-uri("}) + node_set(depth - 1) + ")";
  case 3:
    return one_of({"substring-before(", "substring-after("}) + string(depth - 1) + ", " + string(depth - 1) + ")";
  case 4:
    return "substring(" + string(depth - 1) + ", " + number(depth - 1) + ")";
  case 5:
    return "substring(" + string(depth - 1) + ", " + number(depth - 1) + ", " + number(depth - 1) + ")";
  case 6:
    return "normalize-space(" + (chance(20) ? "" : string(depth - 1)) + ")";
  case 7:
    return "translate(" + string(depth - 1) + ", 'abone\xC3\xA4', " + one_of({"'AB'", "''", "'\xE2\x82\xACx'"}) + ")";
  default:
    return string(0);
  }
}
