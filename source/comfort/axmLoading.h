#pragma once

#include "axmDocumentFactory.h"
#include "axmEngineAccess.h"
#include "axmLoadOptions.h"
#include "axmResult.h"
#include "axmUtf8.h"

#include <apByteArray.h>

#include <cstddef>
#include <istream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

namespace axm
{
using loaded = result<std::shared_ptr<axmDocument>>;

/// Documents with the registered engine: from a file (its path in UTF-8), from text or bytes in memory, and from a
/// stream, which is read to its end. The value is a document, never an empty pointer; the error says file, line, column
/// and reason. Throws std::bad_alloc when memory runs out.
inline loaded load_file(std::string_view file, axmLoadOptions const& options = axmLoadOptions())
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  if (factory == nullptr)
    return error{no_engine()};
  axmParseError failure;
  std::shared_ptr<axmDocument> document = factory->loadDocument(path(file), options, failure);
  if (document == nullptr)
    return to_error(failure);
  return document;
}

inline loaded load_string(std::string_view document_text, axmLoadOptions const& options = axmLoadOptions())
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  if (factory == nullptr)
    return error{no_engine()};
  axmParseError failure;
  std::shared_ptr<axmDocument> document =
    factory->loadDocument(apByteArray(document_text.data(), document_text.size()), options, failure);
  if (document == nullptr)
    return to_error(failure);
  return document;
}

inline loaded load_bytes(void const* bytes, std::size_t size, axmLoadOptions const& options = axmLoadOptions())
{
  return load_string({static_cast<char const*>(bytes), size}, options);
}

inline loaded load_stream(std::istream& in, axmLoadOptions const& options = axmLoadOptions())
{
  std::string const text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad())
    return error{"the stream cannot be read"};
  return load_string(text, options);
}

/// A new document with a root of that name.
inline loaded create(std::string_view root_name)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  if (factory == nullptr)
    return error{no_engine()};
  std::shared_ptr<axmDocument> document = factory->createDocument(wide(root_name));
  if (document == nullptr)
    return error{"'" + std::string(root_name) + "' is not a name"};
  return document;
}
}
