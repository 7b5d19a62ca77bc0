#pragma once

#include "axmExport.h"

#include <apString.h>

/// Why a load failed, and where.
///
/// A value. It is invalid() as long as it holds no error: the caller passes a fresh one to a load and asks
/// `!error.invalid()` afterwards. One object belongs to one thread at a time.
class AXM_API axmParseError
{
public:
  /// No error: empty texts, line and column -1.
  axmParseError();

  /// An error, even if `message` is empty; url empty, line and column -1. There is no other way to make one.
  axmParseError(apString const& message);

  axmParseError(axmParseError const& other);
  axmParseError& operator=(axmParseError const& other);
  ~axmParseError();

  /// What went wrong, in the words of parser or factory.
  apString message() const;

  /// The input that failed: the path of the document or schema, or its URL; empty where it has none.
  apString url() const;
  void set_url(apString const& url);

  /// Line and column of the failure, counted from 1; -1 where it is not known. Columns are characters, not bytes: a
  /// tab is one, and one beyond U+FFFF one or, as in UTF-16, two.
  int line_number() const;
  void set_line_number(int line);
  int column_number() const;
  void set_column_number(int column);

  /// True while no error is recorded.
  bool invalid() const;

private:
  apString text;
  apString where;
  int line;
  int column;
  bool empty;
};
