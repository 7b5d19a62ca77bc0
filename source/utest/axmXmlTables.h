#pragma once

#include "axmUtestAccess.h"

#include <cstddef>
#include <string>

class utUnitTest;

// Tables of documents and how engines are held to them. Not installed.
namespace axmXmlTables
{
// A document in UTF-8 and what it is once it is loaded, as shape_of() writes it.
struct Taken
{
  char const* text;
  char const* shape;
};

// A document or an element with all below it, as text: attributes in the order of their names, in single quotes, without
// any references, elements with both tags. Declarations of namespaces are left out, for they may be attributes or not; so
// is what stands in a document type. It ends after a number of nodes that no check comes near.
std::string shape_of(axmUtestAccess::Node const& top);

// In UTF-16 with a mark at the beginning; what declares another encoding or is no UTF-8 stays as it is.
std::string in_utf16(std::string const& text, bool high_first);

// Whether the document is loaded with no error and with that shape, from memory and from a file, in other encodings, with
// other quotes and line ends, with its content in an entity, with validation that has no schema, and saved and loaded again; if not, it
// is told.
bool is_taken(utUnitTest& tester, axmDocumentFactory& factory, Taken const& taken);

// Whether it fails in all these ways with an error; if not, it is told.
bool is_refused(utUnitTest& tester, axmDocumentFactory const& factory, char const* text);

template <std::size_t Count>
bool all_are_taken(utUnitTest& tester, axmDocumentFactory& factory, Taken const (&table)[Count])
{
  bool are_right = true;
  for (Taken const& taken : table)
    are_right = is_taken(tester, factory, taken) && are_right;
  return are_right;
}

template <std::size_t Count>
bool all_are_refused(utUnitTest& tester, axmDocumentFactory const& factory, char const* const (&table)[Count])
{
  bool are_right = true;
  for (char const* const text : table)
    are_right = is_refused(tester, factory, text) && are_right;
  return are_right;
}

// Whether what is written with several bytes is loaded as what it is where it lies across a border of blocks of 256 to
// 65,536 bytes, at each of its bytes; if not, it is told.
bool are_taken_across_borders(utUnitTest& tester, axmDocumentFactory const& factory);

// Whether every sequence of bytes that is a character is loaded, and one that is none or is cut off fails, wherever it
// stands; if not, it is told.
bool are_bytes_judged(utUnitTest& tester, axmDocumentFactory const& factory);

// Whether one space is kept and other white space dropped where it is all there is, and all of it kept beside a character;
// if not, it is told.
bool is_white_space_judged(utUnitTest& tester, axmDocumentFactory& factory);
}
