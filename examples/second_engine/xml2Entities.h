#pragma once

#include <apString.h>

#include <axmLoadOptions.h>

#include <libxml/tree.h>

// What the references of a document to its entities come to. `document` was parsed with the references left as they are.
// Empty if the options allow it, else what is wrong.
apString xml2_entity_fault(xmlDoc* document, axmLoadOptions const& options);
