#include "axsSchemaSet.h"

#include "axsAmbiguity.h"
#include "axsErrorReporter.h"
#include "axsPlainWords.h"
#include "axsReadError.h"
#include "axsSource.h"
#include "axsSystemId.h"
#include "axsUtf16.h"
#include "axsXercesId.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>
#include <utility>

namespace
{
std::string const xml_namespace = "http://www.w3.org/XML/1998/namespace";

// Most schemas that use attributes of the XML namespace import it from an address, which is never fetched.
char const* const xml_schema =
  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='http://www.w3.org/XML/1998/namespace'>"
  "<xs:attribute name='lang'><xs:simpleType><xs:union memberTypes='xs:language'><xs:simpleType>"
  "<xs:restriction base='xs:string'><xs:enumeration value=''/></xs:restriction>"
  "</xs:simpleType></xs:union></xs:simpleType></xs:attribute>"
  "<xs:attribute name='space'><xs:simpleType><xs:restriction base='xs:NCName'>"
  "<xs:enumeration value='default'/><xs:enumeration value='preserve'/>"
  "</xs:restriction></xs:simpleType></xs:attribute>"
  "<xs:attribute name='base' type='xs:anyURI'/>"
  "<xs:attribute name='id' type='xs:ID'/>"
  "<xs:attributeGroup name='specialAttrs'><xs:attribute ref='xml:base'/><xs:attribute ref='xml:lang'/>"
  "<xs:attribute ref='xml:space'/><xs:attribute ref='xml:id'/></xs:attributeGroup>"
  "</xs:schema>";

std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return std::string(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
}

apString namespace_words(std::string const& name_space)
{
  return name_space.empty() ? APSTRING("elements in no namespace")
                            : APSTRING("the namespace \"") + apString::from_utf8(name_space) + APSTRING("\"");
}

std::string key_of(apPath const& path)
{
  return path.path().c_str();
}

std::string escaped(std::string_view text)
{
  std::string escaped;
  for (char const c : text)
    switch (c)
    {
    case '&':
      escaped += "&amp;";
      break;
    case '<':
      escaped += "&lt;";
      break;
    case '\'':
      escaped += "&apos;";
      break;
    case '\t':
    case '\n':
    case '\r':
      escaped += "&#" + std::to_string(static_cast<int>(c)) + ";";
      break;
    default:
      escaped += c;
    }
  return escaped;
}

std::string schema_start(std::string const& attributes)
{
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'" + attributes + ">";
}

std::string inclusion(apPath const& path)
{
  return "<xs:include schemaLocation='" + axsUtf16::to_utf8(axsXercesId::of(path).c_str()) + "'/>";
}

std::string words(unsigned int code, XMLCh const* domain, XMLCh const* text)
{
  std::string const said = axsUtf16::to_utf8(text);
  if (xercesc::XMLString::equals(domain, xercesc::XMLUni::fgXMLErrDomain))
    return axsPlainWords::of(code, said, 0);
  // The validator tells of default and fixed values and of facets in this way, without saying that it is about them.
  bool const is_value = xercesc::XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain);
  return is_value ? "a facet or value in this declaration is wrong: " + said : said;
}

// Where the reference stands.
axsReadError place_of(xercesc::XMLResourceIdentifier const& wanted, apString const& message)
{
  xercesc::Locator const* const at = wanted.getLocator();
  axsReadError made = axsErrorReporter::make(
    message, wanted.getBaseURI(), at == nullptr ? 0 : at->getLineNumber(), at == nullptr ? 0 : at->getColumnNumber());
  return made;
}

// The file that a schema in `base` refers to; the empty path when it refers to something else.
apPath referred(apPath const& base, std::string const& reference, XMLCh const* as_given)
{
  apPath const own = axsXercesId::path(as_given);
  return own.empty() ? axsSystemId::resolve(base, reference) : own;
}
}

struct axsSchemaSet::File
{
  File(apPath const& given, axsContentSize& sizes)
    : path(given),
      source(given),
      text(source.whole()),
      scan(source, sizes)
  {
  }

  apPath path;
  axsSource source;
  std::string_view text;
  axsSchemaScan scan;
};

axsSchemaSet::axsSchemaSet(axmLoadOptions const& options)
{
  for (int i = 0; i < options.num_external_schemas(); ++i)
    add(narrow(options.external_namespace(i)), options.external_schema(i));
  if (!options.no_namespace_schema().empty())
    add(std::string(), options.no_namespace_schema());
  driver = in_memory(driver_text(), "all schemas");
}

axsSchemaSet::~axsSchemaSet() = default;

void axsSchemaSet::add(std::string const& name_space, apPath const& path)
{
  if (path.empty())
    throw axsReadError{APSTRING("There is no file name of the schema for ") + namespace_words(name_space), apString()};
  File const& added = file(path);
  if (added.scan.target_namespace() != name_space)
    throw axsReadError{APSTRING("The schema is for ") + namespace_words(added.scan.target_namespace()) +
                         APSTRING(", not for ") + namespace_words(name_space),
      apString(path.path())};
  has_plain = has_plain || name_space.empty();
  std::vector<File const*>& present = by_namespace[name_space];
  if (std::find(present.begin(), present.end(), &added) == present.end())
    present.push_back(&added);
}

axsSchemaSet::File const& axsSchemaSet::file(apPath const& path)
{
  std::unique_ptr<File>& known = files[key_of(path)];
  if (known != nullptr)
    return *known;
  known = std::make_unique<File>(path, sizes);
  // The validator takes in all files before it writes anything out.
  sizes.check();
  return *known;
}

std::string axsSchemaSet::driver_text() const
{
  std::string inclusions;
  std::string imports;
  for (auto const& [name_space, named] : by_namespace)
    if (name_space.empty())
      for (File const* const included : named)
        inclusions += inclusion(included->path);
    else
      imports += "<xs:import namespace='" + escaped(name_space) + "' schemaLocation='axs'/>";
  return schema_start("") + inclusions + imports + "</xs:schema>";
}

std::unique_ptr<xercesc::InputSource> axsSchemaSet::in_memory(std::string const& text, std::string const& id) const
{
  auto copy = std::make_unique<XMLByte[]>(text.size() + 1);
  std::copy(text.begin(), text.end(), copy.get());
  auto made =
    std::make_unique<xercesc::MemBufInputSource>(copy.get(), text.size(), axsUtf16::from_utf8(id).c_str(), true);
  static_cast<void>(copy.release());
  made->setCopyBufToStream(false);
  return made;
}

std::unique_ptr<xercesc::InputSource> axsSchemaSet::source_of(File const& file) const
{
  auto made = std::make_unique<xercesc::MemBufInputSource>(
    reinterpret_cast<XMLByte const*>(file.text.data()), file.text.size(), axsXercesId::of(file.path).c_str(), false);
  made->setCopyBufToStream(false);
  return made;
}

// Of several files for one namespace, a schema that includes them all.
std::unique_ptr<xercesc::InputSource> axsSchemaSet::source_of_namespace(std::string const& name_space) const
{
  std::vector<File const*> const& named = by_namespace.at(name_space);
  if (named.size() == 1)
    return source_of(*named.front());
  std::string text = schema_start(" targetNamespace='" + escaped(name_space) + "'");
  for (File const* const included : named)
    text += inclusion(included->path);
  return in_memory(text + "</xs:schema>", "all schemas for " + name_space);
}

xercesc::InputSource* axsSchemaSet::resolveEntity(xercesc::XMLResourceIdentifier* wanted)
{
  std::string const name_space = axsUtf16::to_utf8(wanted->getNameSpace());
  std::string const reference = axsUtf16::to_utf8(wanted->getSystemId());
  bool const is_import = wanted->getResourceIdentifierType() == xercesc::XMLResourceIdentifier::SchemaImport;
  if (is_import && !name_space.empty() && by_namespace.count(name_space) != 0)
    return source_of_namespace(name_space).release();
  if (is_import && name_space == xml_namespace)
    return in_memory(xml_schema, "schema for the XML namespace").release();
  // An import may leave the place open; then there is nothing to read.
  if (reference.empty())
    return nullptr;

  apPath const path = referred(axsXercesId::path(wanted->getBaseURI()), reference, wanted->getSystemId());
  if (path.empty())
    throw place_of(*wanted, APSTRING("The schema \"") + apString::from_utf8(reference) +
                              APSTRING("\" is not a local file; nothing else is read"));
  if (!path.exists())
    throw place_of(*wanted, APSTRING("There is no file ") + apString(path.path()));
  return source_of(file(path)).release();
}

void axsSchemaSet::error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text,
  XMLCh const* system_id, XMLCh const*, XMLFileLoc line, XMLFileLoc column)
{
  if (type == ErrType_Warning)
    return;
  bool const is_ambiguity = code == xercesc::XMLValid::UniqueParticleAttributionFail &&
                            xercesc::XMLString::equals(domain, xercesc::XMLUni::fgValidityDomain);
  if (is_ambiguity && grammars != nullptr)
    throw axsAmbiguity::explained(axsUtf16::to_utf8(text), *grammars);
  axsReadError const found =
    axsErrorReporter::make(apString::from_utf8(words(code, domain, text)), system_id, line, column);
  bool const is_about_use = code == xercesc::XMLErrs::AttributeDisallowedGlobal &&
                            xercesc::XMLString::equals(domain, xercesc::XMLUni::fgXMLErrDomain);
  auto const where = files.find(key_of(axsXercesId::path(system_id)));
  if (!is_about_use || where == files.end() || !where->second->scan.has_lenient_use(found.line, found.column))
    throw found;
}
