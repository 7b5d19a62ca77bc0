#pragma once

/// What axsComparison does not count. A plain value.
struct axsCompareOptions
{
  /// White space between elements where no other text is beside them, which is how a document is laid out; but where
  /// xml:space="preserve" holds, it counts.
  bool ignores_layout = false;

  /// All white space that is hardly meant: between elements, at the ends of texts, and how much of it there is within; with
  /// the same exception.
  bool ignores_space = false;

  bool ignores_comments = false;
};
