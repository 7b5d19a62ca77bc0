#include "axsValidator.h"

#include "axsAttribute.h"
#include "axsElement.h"
#include "axsEntityHandler.h"
#include "axsErrorReporter.h"
#include "axsInputSource.h"
#include "axsName.h"
#include "axsParserMemory.h"
#include "axsSchemaSet.h"
#include "axsSource.h"
#include "axsUtf16.h"
#include "axsValidityReporter.h"
#include "axsXerces.h"

#include <xercesc/internal/IGXMLScanner.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include <algorithm>
#include <memory>
#include <string>

namespace
{
std::size_t const memory_free = 1024 * 1024 * 1024;

std::string_view namespace_of(axsElement const& root)
{
  std::string_view const prefix = root.element_name().prefix();
  std::string const declaration = prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix);
  axsAttribute const* const declared = root.find_attribute(std::string_view(declaration));
  return declared == nullptr ? std::string_view() : declared->text();
}

class Run
{
public:
  Run(axsSource& given, axmLoadOptions const& options);

  void validate(std::string_view root_namespace);

private:
  void make_scanner();
  void load_schemas();
  void scan();
  bool knows(std::string_view name_space) const;
  axsReadError place() const;

  axsSource& source;
  axsSchemaSet schemas;
  axsParserMemory memory;
  xercesc::SecurityManager limits;
  axsEntityHandler entities;
  std::unique_ptr<xercesc::GrammarResolver> grammars;
  axsValidityReporter errors;
  std::unique_ptr<xercesc::XMLScanner> scanner;
};

Run::Run(axsSource& given, axmLoadOptions const& options)
  : source(given),
    schemas(options),
    memory(memory_free),
    entities(options.disable_entity_resolution(), [this] { return place(); }),
    grammars(std::make_unique<xercesc::GrammarResolver>(nullptr, &memory)),
    errors(*grammars, memory, [this] { return place(); })
{
  limits.setEntityExpansionLimit(static_cast<XMLSize_t>(std::max(options.entity_expansion_limit(), 0)));
}

void Run::validate(std::string_view root_namespace)
{
  memory.watch_stack();
  axsXerces::run(
    memory,
    [&]
    {
      make_scanner();
      load_schemas();
      if (knows(root_namespace))
        scan();
    },
    [this] { return place(); });
}

void Run::make_scanner()
{
  scanner =
    std::make_unique<xercesc::IGXMLScanner>(&errors, nullptr, &entities, &errors, nullptr, grammars.get(), &memory);
  scanner->setURIStringPool(grammars->getStringPool());
  scanner->setSecurityManager(&limits);
  scanner->setDoNamespaces(true);
  scanner->setDoSchema(true);
  scanner->setLoadExternalDTD(false);
  // With any other scheme, schemas that were loaded before are not enough to be validated against.
  scanner->setValidationScheme(xercesc::XMLScanner::Val_Always);
  scanner->setSkipDTDValidation(true);
  scanner->setValidationSchemaFullChecking(true);
  scanner->setIdentityConstraintChecking(true);
  scanner->setHandleMultipleImports(true);
  scanner->setNormalizeData(false);
  scanner->setDisableDefaultEntityResolution(true);
}

void Run::load_schemas()
{
  schemas.set_grammars(*grammars);
  scanner->setEntityHandler(&schemas);
  scanner->setErrorReporter(&schemas);
  grammars->cacheGrammarFromParse(true);
  if (scanner->loadGrammar(schemas.whole(), xercesc::Grammar::SchemaGrammarType, true) == nullptr)
    throw axsReadError{APSTRING("The schemas cannot be used together"), apString()};

  grammars->cacheGrammarFromParse(false);
  grammars->useCachedGrammarInParse(true);
  scanner->useCachedGrammarInParse(true);
  // What the document says of schemas is not heeded.
  scanner->setLoadSchema(false);
}

bool Run::knows(std::string_view name_space) const
{
  return name_space.empty() ? schemas.has_no_namespace()
                            : grammars->getGrammar(axsUtf16::from_utf8(name_space).c_str()) != nullptr;
}

void Run::scan()
{
  scanner->setEntityHandler(&entities);
  scanner->setErrorReporter(&errors);
  source.rewind();
  errors.start(*scanner->getLocator(), scanner->getEmptyNamespaceId());
  axsInputSource input(source, memory);
  scanner->scanDocument(input);
  errors.finish();
}

axsReadError Run::place() const
{
  // Before the beginning and behind the end there is no place.
  if (scanner == nullptr || scanner->getReaderMgr()->getCurrentReader() == nullptr)
    return {apString(), source.url()};
  xercesc::Locator const& at = *scanner->getLocator();
  return axsErrorReporter::make(apString(), at.getSystemId(), at.getLineNumber(), at.getColumnNumber());
}
}

bool axsValidator::is_wanted(axmLoadOptions const& options)
{
  return options.validate_mode() == axmValidateWithSchemas &&
         (options.num_external_schemas() > 0 || !options.no_namespace_schema().empty());
}

void axsValidator::validate(axsSource& source, axmLoadOptions const& options, axsElement const& root)
{
  axsXerces::initialise();
  Run(source, options).validate(namespace_of(root));
}
