#pragma once

#include "axmException.h"

/// A tag is missing or does not match another one.
class AXM_API axmTagException : public axmException
{
public:
  /// `tag_text` is the name of the tag or says which tag is meant; the storage is shared, not copied.
  axmTagException(utString const& tag_text);
  axmTagException(axmTagException const& other);
  axmTagException& operator=(axmTagException const& other);
  ~axmTagException() override;

  /// "axmTagException:: Something wrong with tag ", the text it was made with, and a line feed.
  utString explanation() const override;

private:
  utString tag_text;
};
