#include "axmModelStep.h"

#include "axmModel.h"
#include "axmModelSource.h"
#include "axmModelText.h"

#include <apString.h>

namespace
{
using Action = axmModelAction;

std::string text_of(std::wstring const& text)
{
  return "apString(" + axmModelText::quoted(text) + ")";
}

class Program
{
public:
  explicit Program(std::vector<axmModelStep> const& given) : steps(given) {}

  std::string text() const
  {
    std::string result;
    for (axmModelStep const& step : steps)
      result += line(step) + '\n';
    return result;
  }

private:
  // What the variable of a slot is declared as.
  char const* type(int slot) const
  {
    for (axmModelStep const& step : steps)
      if (step.slot == slot)
        return type(step.action);
    return "axmNode";
  }

  static char const* type(Action action)
  {
    switch (action)
    {
    case Action::create_document:
    case Action::load:
    case Action::load_from_file:
    case Action::reload:
    case Action::reload_from_file:
    case Action::reload_xml:
    case Action::owner:
      return "axmDocument";
    case Action::create_element:
    case Action::item:
    case Action::root:
    case Action::list_next:
      return "axmElement";
    default:
      return "axmNode";
    }
  }

  std::string as(char const* wanted, int slot) const
  {
    std::string const name = axm_model_variable(slot);
    return type(slot) == std::string(wanted) ? name
                                             : "std::dynamic_pointer_cast<" + std::string(wanted) + ">(" + name + ")";
  }

  std::string made(axmModelStep const& step, std::string const& call) const
  {
    return "auto const " + axm_model_variable(step.slot) + " = " + call + ";";
  }

  std::string line(axmModelStep const& step) const
  {
    std::string const a = axm_model_variable(step.a);
    std::string const b = axm_model_variable(step.b);
    std::string const c = axm_model_variable(step.c);
    std::string const document = as("axmDocument", step.a);
    std::string const element = as("axmElement", step.a);
    std::string const name = text_of(step.name);
    std::string const text = text_of(step.text);
    switch (step.action)
    {
    case Action::create_document:
      return made(step, "factory->createDocument(" + name + ")");
    case Action::load:
      return made(step, "loaded(" + source(step.index) + ")");
    case Action::load_from_file:
      return made(step, "loaded_from_file(" + source(step.index) + ")");
    case Action::load_failing:
      return "loaded(" + axmModelText::quoted(step.text) + ");";
    case Action::reload:
      return made(step, "saved_and_loaded(" + document + ")");
    case Action::reload_from_file:
      return made(step, "saved_to_file_and_loaded(" + document + ")");
    case Action::reload_xml:
      return made(step, "loaded(" + a + "->get_xml())");
    case Action::create_element:
      return made(step, document + "->createElement(" + name + ")");
    case Action::create_text:
      return made(step, document + "->createTextNode(" + text + ")");
    case Action::create_comment:
      return made(step, document + "->createComment(" + text + ")");
    case Action::append:
      return a + "->appendChild(" + b + ");";
    case Action::insert:
      return a + "->insertBefore(" + b + ", " + c + ");";
    case Action::replace:
      return a + "->replaceChild(" + b + ", " + c + ");";
    case Action::remove:
      return a + "->removeChild(" + b + ");";
    case Action::set_text:
      return a + "->set_text(" + text + ");";
    default:
      return line_of_others(step);
    }
  }

  std::string line_of_others(axmModelStep const& step) const
  {
    std::string const a = axm_model_variable(step.a);
    std::string const element = as("axmElement", step.a);
    std::string const name = text_of(step.name);
    switch (step.action)
    {
    case Action::set_attribute:
      return element + "->setAttribute(" + name + ", " + text_of(step.text) + ");";
    case Action::remove_attribute:
      return element + "->removeAttribute(" + name + ");";
    case Action::attribute_node:
      return made(step, a + "->getAttributes()->getNamedItem(" + name + ")");
    case Action::remove_attribute_node:
      return made(step, a + "->getAttributes()->removeNamedItem(" + name + ")");
    case Action::set_attribute_node:
      return made(step, a + "->getAttributes()->setNamedItem(" + axm_model_variable(step.b) + ")");
    case Action::parent:
      return made(step, a + "->getParentNode()");
    case Action::first:
      return made(step, a + "->getFirstChild()");
    case Action::last:
      return made(step, a + "->getLastChild()");
    case Action::next:
      return made(step, a + "->getNextSibling()");
    case Action::previous:
      return made(step, a + "->getPreviousSibling()");
    case Action::item:
      return made(step, a + "->getChildNodes()->at(" + std::to_string(step.index) + ")");
    case Action::root:
      return made(step, as("axmDocument", step.a) + "->getDocumentElement()");
    case Action::owner:
      return made(step, a + "->getOwnerDocument()");
    case Action::children:
      return made(step, a + "->getChildNodes()");
    case Action::by_name:
      return made(step, as("axmDocument", step.a) + "->getElementsByTagName(" + name + ")");
    case Action::list_step:
      return "++*" + a + ";";
    case Action::list_reset:
      return a + "->reset();";
    case Action::list_next:
      return made(step, a + "->next_node()");
    default:
      return a + ".reset();";
    }
  }

  static std::string source(int number)
  {
    axmModel model;
    return axmModelText::quoted(apString(axm_model_source(model, number).text.c_str()).view());
  }

  std::vector<axmModelStep> const& steps;
};
}

std::string axm_model_program(std::vector<axmModelStep> const& steps)
{
  return Program(steps).text();
}

std::string axm_model_variable(int slot)
{
  return slot == axmModelStep::no_slot ? "nullptr" : "n" + std::to_string(slot);
}
