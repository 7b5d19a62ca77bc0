#pragma once

#include "axsContentSize.h"
#include "axsSchemaScan.h"

#include <axmLoadOptions.h>

#include <xercesc/framework/XMLEntityHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class apPath;
class axsSource;

/// The schemas that the options of a load name, put together for the validator: one schema in memory that takes in all of
/// them, by namespace, and what they include and import. Every file is opened and looked over by us; a reference that
/// leads to no local file is an error.
class axsSchemaSet final : public xercesc::XMLEntityHandler, public xercesc::XMLErrorReporter
{
public:
  /// Reads the files that the options name. Throws axsReadError when one is missing, unreadable or no schema for the
  /// namespace it is named for, std::bad_alloc when memory runs out.
  explicit axsSchemaSet(axmLoadOptions const& options);
  ~axsSchemaSet() override;

  /// Whether there is a schema for elements in no namespace.
  bool has_no_namespace() const noexcept { return has_plain; }

  /// The schema that takes in the others.
  xercesc::InputSource& whole() const noexcept { return *driver; }

  /// Where the validator keeps what it has read of the schemas, for errors that it finds in it later on.
  void set_grammars(xercesc::GrammarResolver& read) noexcept { grammars = &read; }

  // What the validator asks for while it reads the schemas, and the errors that it finds in them.
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* wanted) override;
  void error(unsigned int code, XMLCh const* domain, ErrTypes type, XMLCh const* text, XMLCh const* system_id,
    XMLCh const* public_id, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}
  void endInputSource(xercesc::InputSource const&) override {}
  bool expandSystemId(XMLCh const*, xercesc::XMLBuffer&) override { return false; }
  void resetEntities() override {}
  void startInputSource(xercesc::InputSource const&) override {}

private:
  struct File;

  File const& file(apPath const& path);
  void add(std::string const& name_space, apPath const& path);
  std::unique_ptr<xercesc::InputSource> in_memory(std::string const& text, std::string const& id) const;
  std::unique_ptr<xercesc::InputSource> source_of(File const& file) const;
  std::unique_ptr<xercesc::InputSource> source_of_namespace(std::string const& name_space) const;
  std::string driver_text() const;

  axsContentSize sizes; // of what is in the files
  // By path.
  std::map<std::string, std::unique_ptr<File>> files;
  std::map<std::string, std::vector<File const*>> by_namespace;
  bool has_plain = false;
  xercesc::GrammarResolver* grammars = nullptr;
  std::unique_ptr<xercesc::InputSource> driver;
};
