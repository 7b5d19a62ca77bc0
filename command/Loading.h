#pragma once

#include <apByteArray.h>
#include <axmDocumentFactory.h>

#include <memory>
#include <string>

/// Loads `file`, or what standard input has where that is "-", decompressed if it is compressed. If it cannot, says why
/// with messages(): as "file:line:column: text", with the line and a mark under
/// the column where they are known. Empty then.
std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, axmLoadOptions const& options);

/// The same of bytes that were read from it.
std::shared_ptr<axmDocument> load_or_complain(
  axmDocumentFactory const& factory, std::string const& file, apByteArray const& bytes, axmLoadOptions const& options);

/// All bytes of `file`, decompressed if it is compressed. False if they cannot be read, which it says then.
bool read_or_complain(std::string const& file, apByteArray& bytes);

/// What a message calls the file: its name, or "standard input" for "-".
std::string shown_name(std::string const& file);

/// Says with messages() why `file` cannot be read, in that form; `more` follows the text.
void complain_about(axmParseError const& error, std::string const& file, std::string const& more = {});

/// The same without the line, of what cannot be opened a second time.
void complain_in_one_line(axmParseError const& error, std::string const& file, std::string const& more);

/// The factory of the built-in engine; without one says so on standard error, and is empty.
std::shared_ptr<axmDocumentFactory> engine_or_complain();
