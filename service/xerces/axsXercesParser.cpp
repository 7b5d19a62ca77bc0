#include "axsXercesParser.h"

#include "axsBadBytes.h"
#include "axsDoctypeText.h"
#include "axsDtd.h"
#include "axsEntityHandler.h"
#include "axsErrorReporter.h"
#include "axsInputSource.h"
#include "axsLocator.h"
#include "axsNameCache.h"
#include "axsNamespaceScope.h"
#include "axsParseHandler.h"
#include "axsParserMemory.h"
#include "axsSource.h"
#include "axsStartTag.h"
#include "axsUtf16.h"
#include "axsXerces.h"

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/IGXMLScanner.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/validators/DTD/DocTypeHandler.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace
{
// What the parser may hold at a time, besides a multiple of what it has read of the document.
std::size_t const memory_free = std::size_t{64} * 1024 * 1024;

// One run of the parser: hears what it says and says it to the events.
class Run final : public xercesc::XMLDocumentHandler, public xercesc::DocTypeHandler, private axsLocator
{
public:
  Run(axsSource& given, axmLoadOptions const& options, axsParseHandler& told);

  void parse();

private:
  apString url() const override { return place().url; }
  axsPlace begin() const override { return end(); }
  axsPlace attribute(std::size_t) const override { return end(); }
  axsPlace end() const override;

  void docCharacters(XMLCh const* text, XMLSize_t length, bool cdata) override;
  void docComment(XMLCh const* comment) override;
  void docPI(XMLCh const* target, XMLCh const* data) override;
  void endDocument() override {}
  void endElement(xercesc::XMLElementDecl const& decl, unsigned int uri, bool is_root, XMLCh const* prefix) override;
  void endEntityReference(xercesc::XMLEntityDecl const&) override {}
  void ignorableWhitespace(XMLCh const* text, XMLSize_t length, bool cdata) override;
  void resetDocument() override {}
  void startDocument() override {}
  void startElement(xercesc::XMLElementDecl const& decl, unsigned int uri, XMLCh const* prefix,
    xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t count, bool is_empty, bool is_root) override;
  void startEntityReference(xercesc::XMLEntityDecl const&) override {}
  void XMLDecl(XMLCh const* version, XMLCh const*, XMLCh const*, XMLCh const*) override;

  void doctypeDecl(
    xercesc::DTDElementDecl const&, XMLCh const*, XMLCh const*, bool has_subset, bool has_external) override;
  void attDef(xercesc::DTDElementDecl const&, xercesc::DTDAttDef const&, bool) override {}
  void doctypeComment(XMLCh const*) override {}
  void doctypePI(XMLCh const*, XMLCh const*) override {}
  void doctypeWhitespace(XMLCh const*, XMLSize_t) override {}
  void elementDecl(xercesc::DTDElementDecl const&, bool) override {}
  void endAttList(xercesc::DTDElementDecl const&) override {}
  void endIntSubset() override { expect_declarations(); }
  void endExtSubset() override {}
  void entityDecl(xercesc::DTDEntityDecl const&, bool, bool) override {}
  void resetDocType() override {}
  void notationDecl(xercesc::XMLNotationDecl const&, bool) override {}
  void startAttList(xercesc::DTDElementDecl const&) override {}
  void startIntSubset() override {}
  void startExtSubset() override {}
  void TextDecl(XMLCh const*, XMLCh const*) override {}

  void make_scanner();
  // An entity that is not declared in what is read is an error, even if it may be declared in what is not.
  void expect_declarations() { scanner->setHasNoDTD(true); }
  int line() const;
  axsReadError place() const;
  std::string_view utf8(XMLCh const* text, std::size_t length);
  std::string_view utf8(XMLCh const* text) { return utf8(text, axsUtf16::length(text)); }
  std::string document_in_utf8();
  void count(std::size_t length);
  void end_text();
  void read_attributes(xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t number);
  void end_element();
  [[noreturn]] void fail(apString const& message) const;

  axsSource& source;
  axsParseHandler& events;
  bool const has_doctype;
  axsParserMemory memory;
  xercesc::SecurityManager limits;
  axsErrorReporter errors;
  axsEntityHandler entities;
  axsNameCache names;
  axsNamespaceScope namespaces;
  axsNamespaceScope::Attributes read;
  std::vector<std::string> values;
  // Of the elements that are open, where they began.
  std::vector<int> open_lines;
  std::unique_ptr<xercesc::GrammarResolver> grammars;
  std::unique_ptr<xercesc::XMLScanner> scanner;
  std::string converted;
  // The text that has not ended.
  std::string pending;
  std::size_t produced = 0;
};

Run::Run(axsSource& given, axmLoadOptions const& options, axsParseHandler& told)
  : source(given),
    events(told),
    has_doctype(!axsDoctypeText::is_absent(given.head())),
    memory(memory_free),
    errors([this] { return open_lines.empty() ? 0 : open_lines.back(); }),
    entities(options.disable_entity_resolution(), [this] { return place(); }),
    names(told),
    namespaces(names)
{
  limits.setEntityExpansionLimit(static_cast<XMLSize_t>(std::max(options.entity_expansion_limit(), 0)));
}

void Run::make_scanner()
{
  grammars = std::make_unique<xercesc::GrammarResolver>(nullptr, &memory);
  // Where there are no declarations a simpler scanner would do, but its time grows with the square of the number of
  // attributes of an element; so would the time of checking namespaces, with the depth.
  scanner = std::make_unique<xercesc::IGXMLScanner>(this, this, &entities, &errors, nullptr, grammars.get(), &memory);
  scanner->setURIStringPool(grammars->getStringPool());
  scanner->setEntityHandler(&entities);
  scanner->setSecurityManager(&limits);
  scanner->setDoNamespaces(false);
  scanner->setDoSchema(false);
  scanner->setLoadSchema(false);
  scanner->setLoadExternalDTD(false);
  scanner->setValidationScheme(xercesc::XMLScanner::Val_Never);
  scanner->setSkipDTDValidation(true);
  scanner->setDisableDefaultEntityResolution(true);
}

void Run::parse()
{
  if (source.head().empty())
    throw axsReadError{APSTRING("The document is empty"), source.url()};
  // The text of the declaration is taken from the bytes.
  if (has_doctype)
    source.whole();

  axsXerces::run(
    memory,
    [this]
    {
      make_scanner();
      events.start_document(*this);
      axsInputSource input(source, memory);
      scanner->scanDocument(input);
      if (source.has_stray_zero())
        throw axsReadError{APSTRING("A zero byte stands in the document"), source.url()};
    },
    [this] { return place(); });
}

int Run::line() const
{
  XMLFileLoc const at = scanner->getLocator()->getLineNumber();
  return at > INT_MAX ? 0 : static_cast<int>(at);
}

axsReadError Run::place() const
{
  // Before the beginning and behind the end there is no place.
  if (scanner == nullptr || scanner->getReaderMgr()->getCurrentReader() == nullptr)
    return {apString(), source.url()};
  xercesc::Locator const& at = *scanner->getLocator();
  return axsErrorReporter::make(apString(), at.getSystemId(), at.getLineNumber(), at.getColumnNumber());
}

axsPlace Run::end() const
{
  axsReadError const at = place();
  return {static_cast<std::uint64_t>(std::max(at.line, 0)), static_cast<std::uint64_t>(std::max(at.column, 0))};
}

std::string_view Run::utf8(XMLCh const* text, std::size_t length)
{
  converted.clear();
  axsUtf16::append_utf8(text, length, converted);
  return converted;
}

// Only entities and defaults make more of a document than it is.
void Run::count(std::size_t length)
{
  if (!has_doctype)
    return;
  produced += length;
  if (produced <= axsXercesParser::growth_free || produced / axsXercesParser::growth_limit <= source.head().size())
    return;
  fail(APSTRING("The entities and defaults of the document make it too large"));
}

void Run::fail(apString const& message) const
{
  axsReadError error = place();
  error.message = message;
  throw error;
}

// The parser lets any text pass (XML 1.0, 2.8, [26] VersionNum).
void Run::XMLDecl(XMLCh const* version, XMLCh const* encoding, XMLCh const* standalone, XMLCh const*)
{
  std::string const number = axsUtf16::to_utf8(version);
  if (number.size() < 3 || number.compare(0, 2, "1.") != 0 ||
      number.find_first_not_of("0123456789", 2) != std::string::npos)
    fail(APSTRING("there is no XML version \"") + apString::from_utf8(number) + APSTRING("\""));
  events.declaration(number, axsUtf16::to_utf8(encoding), axsUtf16::to_utf8(standalone));
}

void Run::docCharacters(XMLCh const* text, XMLSize_t length, bool cdata)
{
  std::string_view const characters = utf8(text, length);
  count(characters.size());
  if (!cdata)
  {
    pending += characters;
    return;
  }
  end_text();
  events.text(characters, true);
}

// The parser tells of a text piece by piece.
void Run::end_text()
{
  if (!pending.empty())
    events.text(pending, false);
  pending.clear();
}

void Run::ignorableWhitespace(XMLCh const* text, XMLSize_t length, bool cdata)
{
  docCharacters(text, length, cdata);
}

void Run::docComment(XMLCh const* comment)
{
  end_text();
  events.comment(utf8(comment));
}

void Run::docPI(XMLCh const* target, XMLCh const* data)
{
  std::string const name = axsUtf16::to_utf8(target);
  if (name.find(':') != std::string::npos)
    fail(APSTRING("the target of a processing instruction cannot have a colon"));
  end_text();
  events.processing_instruction(name, utf8(data));
}

void Run::startElement(xercesc::XMLElementDecl const& decl, unsigned int, XMLCh const*,
  xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t number, bool is_empty, bool)
{
  end_text();
  axsReadName const& name = names.find(utf8(decl.getFullName()));
  read_attributes(attributes, number);
  if (!namespaces.open(name, read))
    fail(apString::from_utf8(namespaces.wrong()));

  std::vector<axsTagAttribute> told;
  for (axsReadAttribute const& attribute : read)
    told.push_back({attribute.name->name, namespaces.of_attribute(*attribute.name), attribute.value,
      axsAttributeType::cdata, true, attribute.name->declared != nullptr});
  events.start_element({name.name, namespaces.of_element(name), &told, &namespaces});
  if (is_empty)
    end_element();
  else
    open_lines.push_back(line());
}

void Run::endElement(xercesc::XMLElementDecl const&, unsigned int, bool, XMLCh const*)
{
  open_lines.pop_back();
  end_element();
}

void Run::end_element()
{
  end_text();
  namespaces.close();
  events.end_element();
}

// The values keep their memory from element to element.
void Run::read_attributes(xercesc::RefVectorOf<xercesc::XMLAttr> const& attributes, XMLSize_t number)
{
  read.clear();
  values.resize(std::max(values.size(), number));
  count(sizeof(void*));
  for (XMLSize_t i = 0; i < number; ++i)
  {
    xercesc::XMLAttr const& attribute = *attributes.elementAt(i);
    std::string& value = values[i];
    value.clear();
    axsUtf16::append_utf8(attribute.getValue(), axsUtf16::length(attribute.getValue()), value);
    read.push_back({&names.find(utf8(attribute.getQName())), value});
    count(sizeof(void*) + value.size());
  }
}

void Run::doctypeDecl(xercesc::DTDElementDecl const&, XMLCh const*, XMLCh const*, bool, bool)
{
  expect_declarations();
  std::string const document = document_in_utf8();
  auto const type = std::make_shared<axsDtd>();
  type->text = axsDoctypeText::find(document);
  events.doctype(type);
}

// The text of `bytes` in `encoding`, up to where it is none.
std::basic_string<XMLCh> transcode(std::string_view bytes, std::string const& encoding)
{
  XMLSize_t const piece = 4096;
  xercesc::XMLTransService::Codes result{};
  std::unique_ptr<xercesc::XMLTranscoder> const transcoder(
    xercesc::XMLPlatformUtils::fgTransService->makeNewTranscoderFor(encoding.c_str(), result, piece));
  std::basic_string<XMLCh> text;
  if (transcoder == nullptr)
    return text;
  XMLCh characters[piece];
  unsigned char sizes[piece];
  while (!bytes.empty())
  {
    XMLSize_t eaten = 0;
    XMLSize_t const made = transcoder->transcodeFrom(
      reinterpret_cast<XMLByte const*>(bytes.data()), bytes.size(), characters, piece, eaten, sizes);
    if (eaten == 0)
      break;
    text.append(characters, made);
    bytes.remove_prefix(eaten);
  }
  return text;
}

std::string Run::document_in_utf8()
{
  std::string const encoding = axsUtf16::to_utf8(scanner->getReaderMgr()->getCurrentEncodingStr());
  std::string_view const bytes = source.head();
  if (encoding == "UTF-8")
    return std::string(bytes);
  // In pieces: TranscodeFromStr writes behind its buffers where a character takes several bytes.
  auto const whole = transcode(bytes, encoding);
  std::string document;
  axsUtf16::append_utf8(whole.data(), whole.size(), document);
  return document;
}
}

void axsXercesParser::parse(axsSource& source, axmLoadOptions const& options, axsParseHandler& events)
try
{
  axsXerces::initialise();
  Run(source, options, events).parse();
}
catch (axsReadError const& error)
{
  throw axsBadBytes::explained(source, error);
}
