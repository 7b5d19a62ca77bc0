#pragma once

/// How axsFormatter lays a document out. A plain value.
struct axsFormatOptions
{
  /// How many blanks, or tabs, a level of elements adds. 0 for lines that begin at the margin.
  unsigned indent = 2;
  bool has_tabs = false;

  /// A start tag that would end further right has its attributes on several lines; counted in characters, a tab as one. 0
  /// for tags of one line however long.
  unsigned width = 100;

  /// No more attributes than that stand on a line; 0 for as many as there is room for.
  unsigned attributes_per_line = 0;
};
