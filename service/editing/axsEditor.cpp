#include "axsEditor.h"

#include "axsEditSession.h"
#include "axsInsertEdit.h"
#include "axsMoveEdit.h"
#include "axsReadError.h"
#include "axsRemoval.h"
#include "axsRenameEdit.h"
#include "axsSetEdit.h"

#include <utility>

axsEditor::axsEditor(std::string bytes, apPath const& path) : document(std::move(bytes)), file(path) {}

axsEditor::~axsEditor() = default;

template <class Edit>
std::size_t axsEditor::run(Edit edit)
try
{
  wrong = {};
  std::size_t count = 0;
  std::string edited;
  {
    axsEditSession session(document, file, prefixes);
    count = edit(session);
    edited = session.finish();
  }
  document = std::move(edited);
  return count;
}
catch (axsEditFault const& fault)
{
  wrong = fault;
  return 0;
}
catch (axsReadError const& unreadable)
{
  wrong = {axsEditFault::Kind::document, unreadable.record(), {}};
  return 0;
}

std::size_t axsEditor::set_attributes(std::string_view xpath, std::vector<axsAttributeSetting> const& settings)
{
  return run([&](axsEditSession& session) { return axsSetEdit::attributes(session, xpath, settings); });
}

std::size_t axsEditor::set_value(std::string_view xpath, std::string_view value)
{
  return run([&](axsEditSession& session) { return axsSetEdit::value(session, xpath, value); });
}

std::size_t axsEditor::remove(std::string_view xpath)
{
  return run(
    [&](axsEditSession& session)
    {
      axsEditSession::Nodes const nodes = session.select(xpath);
      axsRemoval removal(session, nodes);
      session.find_places();
      removal.splice();
      removal.apply();
      return nodes.size();
    });
}

std::size_t axsEditor::rename(std::string_view xpath, std::string_view name)
{
  return run([&](axsEditSession& session) { return axsRenameEdit::run(session, xpath, name); });
}

std::size_t axsEditor::insert(std::string_view xpath, axsEditPlace where, std::string_view fragment)
{
  return run([&](axsEditSession& session) { return axsInsertEdit::run(session, xpath, where, fragment); });
}

std::size_t axsEditor::move(std::string_view xpath, axsEditPlace where, std::string_view target)
{
  return run([&](axsEditSession& session) { return axsMoveEdit::run(session, xpath, where, target); });
}
