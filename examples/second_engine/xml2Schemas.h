#pragma once

#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <libxml/tree.h>

// Whether `document`, which is from `url`, is valid under the schemas of the options; an error says why not. True where
// there are none.
bool xml2_is_valid(xmlDoc* document, apString const& url, axmLoadOptions const& options, axmParseError& error);
