#pragma once

#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <libxml/tree.h>

// Whether `document` is valid under the schemas of the options; an error without a place in it says why not. True where
// there are none.
bool xml2_is_valid(xmlDoc* document, axmLoadOptions const& options, axmParseError& error);
