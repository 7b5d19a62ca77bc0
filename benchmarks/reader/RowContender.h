#pragma once

#include "RowTask.h"

// A way to take rows out of a file, by the fastest road that its library has; false if the library reports an error.
struct RowContender
{
  char const* name;
  bool (*extract)(RowTask const& task, RowDigest& digest);
};

bool rows_with_record_reader(RowTask const& task, RowDigest& digest);
bool rows_with_xml_reader(RowTask const& task, RowDigest& digest);
bool rows_with_pugixml(RowTask const& task, RowDigest& digest);
bool rows_with_expat(RowTask const& task, RowDigest& digest);
bool rows_with_libxml2_reader(RowTask const& task, RowDigest& digest);

// A process of its own, whose time counts.
bool rows_with_command(RowTask const& task, RowDigest& digest);

// By the tree of libxml2, which keeps to all of XML's rules: what the others have to find.
bool rows_expected(RowTask const& task, RowDigest& digest);
