#include "Contender.h"

#include <axmDocumentFactory.h>
#include <axsRegister.h>
#include <axsValidation.h>

namespace
{
axmLoadOptions options_for(std::string const& schema)
{
  axmLoadOptions options(axmValidateWithSchemas);
  options.set_no_namespace_schema(apPath(schema.c_str()));
  return options;
}

class Load final : public Contender
{
public:
  explicit Load(axmLoadOptions const& given) : options(given)
  {
    axs_register();
    utServiceName resolved;
    factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
  }

  bool run(std::string const& document) override
  {
    axmParseError error;
    return factory->loadDocument(apPath(document.c_str()), options, error) != nullptr;
  }

private:
  axmLoadOptions options;
  std::shared_ptr<axmDocumentFactory> factory;
};

class Check final : public Contender
{
public:
  explicit Check(std::string const& schema) : validation(options_for(schema)) {}

  bool run(std::string const& document) override
  {
    return validation.check(apPath(document.c_str()), 1).errors.empty();
  }

private:
  axsValidation validation;
};
}

std::unique_ptr<Contender> make_axs_load(std::string const&)
{
  return std::make_unique<Load>(axmLoadOptions(axmValidateNone));
}

std::unique_ptr<Contender> make_axs_validated_load(std::string const& schema)
{
  return std::make_unique<Load>(options_for(schema));
}

std::unique_ptr<Contender> make_axs_check(std::string const& schema)
{
  return std::make_unique<Check>(schema);
}

bool compile_with_axs(std::string const& schema)
{
  return axsValidation::check_schema(apPath(schema.c_str()), 1).empty();
}
