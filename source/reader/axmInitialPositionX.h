#pragma once

#include "axmPositionX.h"

/// The beginning of an XML document that is in memory: its XML declaration (XML 1.0, 2.8).
///
/// A cursor like its base, with the same rules for owner, threads and errors. The operations may be called in any order
/// and any number of times; each begins at the beginning of the document and moves the cursor. A declaration must be the
/// very first thing in the document, its parts must stand in the order version, encoding, standalone, and no white space
/// may stand around a `=`; any character may serve as quote.
class AXM_API axmInitialPositionX : public axmPositionX
{
public:
  axmInitialPositionX(char* buffer);
  axmInitialPositionX(axmInitialPositionX const& other);
  axmInitialPositionX& operator=(axmInitialPositionX const& other);
  ~axmInitialPositionX();

  /// The version as it is written.
  utString version();

  /// The name of the encoding as it is written; "utf-8" if there is none or it is empty. The cursor stays at its end, in
  /// the declaration: a search for child elements from there finds the root element.
  utString encoding();

  /// What is written for standalone; "no" if there is nothing.
  utString standalone();

  /// Where the document goes on after its first tag and the white space and comments that follow: without a
  /// declaration, that is after the opening tag of the root element.
  char* end_point();

private:
  utString attribute_value(utString const& name);
};
