#pragma once

#include "Digest.h"

#include <cstddef>
#include <memory>
#include <string>

/// One of the libraries compared, with one document. Every operation is measured by itself. What they found is told by
/// the digests, which are not measured.
class Subject
{
public:
  virtual ~Subject() = default;

  virtual bool load(std::string const& file) = 0;

  /// Every name, value and text of the root and what is in it as a string of the library's own; the length of all
  /// together, so that none is spared.
  virtual std::size_t traverse() = 0;

  /// The same strings.
  virtual Digest::Sum digest() = 0;

  /// So many reads of an attribute of the root, in turn as int, double, bool and string; the sum of what was read.
  virtual double read_typed(int reads) = 0;

  /// The number of nodes that an XPath expression selects from the root; -1 where the library has no XPath.
  virtual long select(std::string const& xpath) = 0;

  /// The names and texts of what it selects, to be called where there is XPath.
  virtual Digest::Sum digest_selection(std::string const& xpath) = 0;

  /// So many rounds of making an element with an attribute, appending it to the root and removing it.
  virtual void churn(int rounds) = 0;

  virtual bool save(std::string const& file) = 0;
};

std::unique_ptr<Subject> make_axs();
std::unique_ptr<Subject> make_libxml2();
std::unique_ptr<Subject> make_xerces();
std::unique_ptr<Subject> make_pugixml();
