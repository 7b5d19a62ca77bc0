#pragma once

#include "axmDocumentFactory.h"
#include "axmEngineAccess.h"
#include "axmIndentedWriter.h"
#include "axmResult.h"
#include "axmSaveObstacles.h"
#include "axmUtf8.h"

#include <apAtomicFile.h>
#include <apByteArray.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace axm
{
/// Nothing, or the reason why something failed.
using saved = result<bool>;

/// How a document is laid out when it is saved.
enum class layout
{
  as_it_is,
  indented // two spaces a level; mixed content and what xml:space preserves stay as they are
};

/// Why an engine did not save it: in its own words, if it has any.
inline error save_error(axmDocumentFactory& factory, axmDocument const& document)
{
  auto const* const obstacles = dynamic_cast<axmSaveObstacles const*>(&factory);
  apString const reason = obstacles == nullptr ? apString() : obstacles->obstacle(document);
  if (reason.empty())
    return error{"the document holds a name, a character or a prefix that XML cannot hold there"};
  return error{"the document cannot be saved: " + utf8(reason)};
}

/// The document as UTF-8 text with its declaration. An error where it holds what XML cannot.
inline result<std::string> to_string(std::shared_ptr<axmDocument> const& document, layout as = layout::as_it_is)
{
  std::shared_ptr<axmDocumentFactory> const factory = engine();
  if (factory == nullptr)
    return error{no_engine()};
  if (document == nullptr)
    return error{"there is no document to save"};
  apByteArray bytes;
  if (!factory->saveDocument(document, bytes))
    return save_error(*factory, *document);
  std::string text(bytes.data(), bytes.size());
  if (as == layout::indented)
    return indented_writer::text_of(*document, text.substr(0, text.find("?>") + 2));
  return text;
}

/// Writes it to the stream.
inline saved save_stream(std::shared_ptr<axmDocument> const& document, std::ostream& out, layout as = layout::as_it_is)
{
  result<std::string> const text = to_string(document, as);
  if (!text)
    return text.error();
  if (!out.write(text->data(), static_cast<std::streamsize>(text->size())).flush())
    return error{"the stream cannot be written"};
  return true;
}

/// Writes it to the file, whose path is UTF-8, whole or not at all; see apAtomicFile.
inline saved save_file(
  std::shared_ptr<axmDocument> const& document, std::string_view file, layout as = layout::as_it_is)
{
  result<std::string> const text = to_string(document, as);
  if (!text)
    return error{text.error().message, std::string(file)};
  errno = 0;
  apAtomicFile output(path(file));
  if (output.stream() != nullptr && std::fwrite(text->data(), 1, text->size(), output.stream()) == text->size() &&
      output.commit())
    return true;
  std::string const reason = errno == 0 ? std::string() : std::string(": ") + std::strerror(errno);
  return error{"the file cannot be written" + reason, std::string(file)};
}
}
