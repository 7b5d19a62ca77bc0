#include "axsSchemaLoader.h"

#include "axsLocalFile.h"
#include "axsReadError.h"
#include "axsSchemaGrammar.h"
#include "axsSchemaText.h"
#include "axsSource.h"
#include "axsSystemId.h"

#include <apByteArray.h>

#include <algorithm>

namespace
{
using Field = axsSchemaField;
using axsSchemaText::quoted;

// Most schemas that use attributes of the XML namespace import it from an address, which is never fetched.
std::string_view const xml_schema =
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

// The attributes that may stand on every element (3.2.7).
std::string_view const instance_schema =
  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
  "targetNamespace='http://www.w3.org/2001/XMLSchema-instance'>"
  "<xs:attribute name='type' type='xs:QName'/><xs:attribute name='nil' type='xs:boolean'/>"
  "<xs:attribute name='schemaLocation'><xs:simpleType><xs:list itemType='xs:anyURI'/></xs:simpleType></xs:attribute>"
  "<xs:attribute name='noNamespaceSchemaLocation' type='xs:anyURI'/>"
  "</xs:schema>";

std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return {utf8.c_str(), static_cast<std::size_t>(utf8.length())};
}

std::string narrow(apPath const& path)
{
  utString const text = path.path();
  return {text.c_str(), static_cast<std::size_t>(text.length())};
}

std::string namespace_words(std::string_view name_space)
{
  return name_space.empty() ? "elements in no namespace" : "the namespace \"" + std::string(name_space) + "\"";
}

// `path` is what the location names, empty where that is not a local file.
std::string unread_words(std::string_view location, apPath const& path)
{
  if (location.empty())
    return "its import names no schema";
  return path.empty() ? "the schema that its import names, \"" + std::string(location) + "\", is not a local file"
                      : "the schema that its import names, " + narrow(path) + ", is not there";
}

std::uint32_t counted(int place)
{
  return static_cast<std::uint32_t>(std::max(place, 0));
}
}

axsSchemaLoader::axsSchemaLoader(axsSchemaErrors& told) : errors(told) {}
axsSchemaLoader::~axsSchemaLoader() = default;

void axsSchemaLoader::add(std::string_view name_space, apPath const& path)
{
  if (path.empty())
  {
    errors.add({}, "There is no file name of the schema for " + namespace_words(name_space));
    return;
  }
  File const& added = file(path);
  given.emplace_back(name_space);
  if (added.document == nullptr)
    return;
  check_namespace(added, name_space);
  unit(added, name_space);
}

void axsSchemaLoader::add(apPath const& path)
{
  File const& added = file(path);
  if (added.document != nullptr)
    unit(added, added.document->root().value(Field::target_namespace));
}

void axsSchemaLoader::read_all()
{
  for (; next_to_read < all.size() && !errors.full(); ++next_to_read)
    read_references(all[next_to_read]);
  add_built_in(axsSchemaVocabulary::xml_namespace, xml_schema);
  add_built_in(axsSchemaVocabulary::instance_namespace, instance_schema);
}

void axsSchemaLoader::add_text(std::string_view name, std::string_view text)
{
  std::string const path(name);
  File& added = number(path, apPath(path.c_str()));
  apByteArray const bytes(text.data(), text.size());
  axsSource source(bytes);
  read(added, source);
  if (added.document != nullptr)
    unit(added, added.document->root().value(Field::target_namespace));
}

axsSchemaLoader::File& axsSchemaLoader::file(apPath const& path)
{
  std::string const identity = axsLocalFile::identity(path);
  if (auto const found = known.find(identity); found != known.end())
    return *found->second;
  File& made = number(identity, path);
  looked_at.push_back(axsFileStamp::of(path));
  try
  {
    std::unique_ptr<axsSource> const source = axsLocalFile::open(path);
    read(made, *source);
  }
  catch (axsReadError const& failure)
  {
    errors.add({made.number, 0, 0}, narrow(failure.message));
  }
  return made;
}

axsSchemaLoader::File& axsSchemaLoader::number(std::string const& key, apPath const& path)
{
  File& made = *known.insert_or_assign(key, std::make_unique<File>()).first->second;
  made.path = path;
  paths.push_back(narrow(path));
  file_paths.push_back(path);
  made.number = static_cast<std::uint32_t>(paths.size());
  return made;
}

void axsSchemaLoader::read(File& made, axsSource& source)
{
  try
  {
    made.document = std::make_unique<axsSchemaDocument>(source, made.number);
  }
  catch (axsReadError const& failure)
  {
    errors.add({made.number, counted(failure.line), counted(failure.column)}, narrow(failure.message));
    return;
  }
  axsSchemaGrammar::check(*made.document, errors);
}

axsSchemaUnit& axsSchemaLoader::unit(File const& of, std::string_view target)
{
  axsSchemaUnit*& made = unit_of[std::to_string(of.number) + ' ' + std::string(target)];
  if (made != nullptr)
    return *made;
  made = &all.emplace_back();
  made->document = of.document.get();
  made->target = target;
  made->is_chameleon = !target.empty() && !of.document->root().has(Field::target_namespace);
  return *made;
}

void axsSchemaLoader::read_references(axsSchemaUnit& from)
{
  for (axsSchemaElement const* child = from.document->root().first_child; child != nullptr; child = child->next)
    switch (child->role)
    {
    case axsSchemaRole::include:
    case axsSchemaRole::redefine:
      include(from, *child);
      break;
    case axsSchemaRole::import:
      import(from, *child);
      break;
    default:
      break;
    }
}

// src-include and src-redefine.
void axsSchemaLoader::include(axsSchemaUnit& from, axsSchemaElement const& reference)
{
  if (!reference.has(Field::schema_location))
    return;
  File const* const found = referred(reference);
  if (found == nullptr || found->document == nullptr)
    return;
  axsSchemaElement const& root = found->document->root();
  std::string_view const target = root.value(Field::target_namespace);
  if (root.has(Field::target_namespace) && target != from.target) // src-include.2.1, src-redefine.3.1
  {
    errors.add(reference.place, "the schema " + narrow(found->path) + " is for " + namespace_words(target) +
                                  ", not for " + namespace_words(from.target));
    return;
  }
  axsSchemaUnit const& included = unit(*found, from.target);
  from.included.push_back(&included);
  if (reference.role == axsSchemaRole::redefine)
    from.redefinitions.push_back({&reference, &included});
}

// src-import. An import may leave open where a schema is, and what it says of that need not be so: what is not found is
// told of where it is referred to (4.2.3).
void axsSchemaLoader::import(axsSchemaUnit& from, axsSchemaElement const& reference)
{
  std::string_view const name_space = reference.value(Field::name_space);
  from.imports.push_back({name_space, {}});
  bool const is_given = std::find(given.begin(), given.end(), name_space) != given.end();
  bool const is_built_in =
    name_space == axsSchemaVocabulary::schema_namespace || name_space == axsSchemaVocabulary::instance_namespace;
  if (is_given || is_built_in)
    return;
  if (name_space == axsSchemaVocabulary::xml_namespace)
  {
    import_xml_namespace(reference);
    return;
  }
  std::string_view const location = reference.value(Field::schema_location);
  apPath const path =
    location.empty() ? apPath() : axsSystemId::resolve(file_paths[reference.place.file - 1], location);
  if (path.empty() || !path.exists())
  {
    from.imports.back().unread = unread_words(location, path);
    if (!path.empty())
      looked_at.push_back(axsFileStamp::of(path));
    return;
  }
  File const& found = file(path);
  if (found.document == nullptr)
    return;
  std::string_view const target = found.document->root().value(Field::target_namespace);
  if (target != name_space) // src-import.3
  {
    errors.add(reference.place, "the schema " + narrow(found.path) + " is for " + namespace_words(target) +
                                  ", not for " + namespace_words(name_space));
    return;
  }
  unit(found, target);
}

// Copies of the schema of that namespace lie everywhere: the first one is taken, and the one that is built in where none
// is there.
void axsSchemaLoader::import_xml_namespace(axsSchemaElement const& reference)
{
  apPath const path =
    axsSystemId::resolve(file_paths[reference.place.file - 1], reference.value(Field::schema_location));
  bool const is_there = std::any_of(all.begin(), all.end(),
    [](axsSchemaUnit const& unit) { return unit.target == axsSchemaVocabulary::xml_namespace; });
  if (is_there || path.empty() || !path.exists())
    return;
  File const& found = file(path);
  bool const is_it = found.document != nullptr &&
                     found.document->root().value(Field::target_namespace) == axsSchemaVocabulary::xml_namespace;
  if (is_it)
    unit(found, axsSchemaVocabulary::xml_namespace);
}

axsSchemaLoader::File* axsSchemaLoader::referred(axsSchemaElement const& reference)
{
  std::string_view const location = reference.value(Field::schema_location);
  axsSchemaPlace const place = reference.place_of(Field::schema_location);
  apPath const path = axsSystemId::resolve(file_paths[reference.place.file - 1], location);
  if (path.empty())
  {
    errors.add(place, "The schema \"" + std::string(location) + "\" is not a local file; nothing else is read");
    return nullptr;
  }
  if (!path.exists())
  {
    errors.add(place, "There is no file " + narrow(path));
    return nullptr;
  }
  return &file(path);
}

void axsSchemaLoader::add_built_in(std::string_view name_space, std::string_view text)
{
  bool const is_wanted = std::any_of(
    all.begin(), all.end(), [&](axsSchemaUnit const& unit) { return unit.import_of(name_space) != nullptr; });
  bool const is_there =
    std::any_of(all.begin(), all.end(), [&](axsSchemaUnit const& unit) { return unit.target == name_space; });
  if (!is_wanted || is_there)
    return;
  apByteArray const bytes(text.data(), text.size());
  axsSource source(bytes);
  axsSchemaUnit& made = all.emplace_back();
  made.document = built_in.emplace_back(std::make_unique<axsSchemaDocument>(source, 0)).get();
  made.target = name_space;
}

void axsSchemaLoader::check_namespace(File const& of, std::string_view expected)
{
  std::string_view const target = of.document->root().value(Field::target_namespace);
  if (target != expected)
    errors.add(
      {of.number, 0, 0}, "The schema is for " + namespace_words(target) + ", not for " + namespace_words(expected));
}
