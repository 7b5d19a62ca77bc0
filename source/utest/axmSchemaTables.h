#pragma once

#include "axmLoadOptions.h"
#include "axmUtestAccess.h"
#include "axmUtestFile.h"
#include "axmUtestGroup.h"

#include <apPath.h>

#include <string>
#include <vector>

class utUnitTest;

// Tables of schemas and documents, and how engines are held to them. Not installed.
namespace axmSchemaTables
{
// What stands in a schema, documents that follow it, and documents that do not. Documents may say xsi: and xs: without a
// declaration of these prefixes.
struct Rule
{
  std::string schema;
  std::vector<std::string> valid;
  std::vector<std::string> invalid;
};

// What one check is about.
struct Case
{
  char const* description;
  Rule rule;
};

// What stands in a schema of an element v of a simple type, and an element w with an attribute a of it.
std::string typed(char const* type);

// The same of an element v alone, of a type that is restricted by these facets.
std::string restricted(char const* base, char const* facets);

// A schema document without target namespace.
std::string schema_of(std::string const& content);

// A file in the working folder as long as it lives.
class SchemaFile
{
public:
  SchemaFile(char const* name, std::string const& text);

  apPath const path;

private:
  axmUtestFile const removed_at_the_end;
};

axmLoadOptions options_with(apPath const& schema);

// Whether a load comes to what it must; if not, it is told.
bool is_judged(utUnitTest& tester, axmDocumentFactory const& factory, axmLoadOptions const& options,
  std::string const& text, bool is_valid);

// Whether every document is loaded or fails as it must; if not, it is told. The same where schema and documents are in a
// namespace, by themselves and from files, included and imported, unless a document says xmlns= or the schema speaks of namespaces or
// global attributes; and where the type of an element v, if it is a simple one, is that of an attribute.
bool is_kept(utUnitTest& tester, axmDocumentFactory const& factory, Rule const& rule);

// A check for each.
void check_cases(
  axmUtestGroup const& group, utUnitTest& tester, axmDocumentFactory const& factory, std::vector<Case> const& cases);

inline constexpr char all_are_judged[] = "what is valid is loaded, all else fails";
}
