#include "BuiltInEngine.h"

#include <axsRegister.h>
#include <axsSaving.h>
#include <axsXPath.h>

std::shared_ptr<axmDocumentFactory> built_in_engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

std::string built_in_obstacle(axmDocument const& document)
{
  return axsSaving::obstacle(document).to_utf8().c_str();
}

XPathAnswer built_in_answer(axmNode& context, std::string const& xpath)
{
  XPathAnswer answer;
  axsXPath::Value value;
  axsXPathError error;
  if (!axsXPath::evaluate(context, apString(xpath.c_str()), value, error))
    answer.fault = error.message + ", at character " + std::to_string(error.position);
  else if (value.type != axsXPathType::node_set)
    answer.value = value.text.to_utf8().c_str();
  return answer;
}
