#pragma once

#include <cstddef>
#include <memory>
#include <string>

/// One of the libraries compared, with one document. Every operation is measured by itself; the numbers that they return
/// let one see that all libraries did the same.
class Subject
{
public:
  virtual ~Subject() = default;

  virtual bool load(std::string const& file) = 0;

  /// Every name, value and text of the document as a string of the library's own; the number of strings.
  virtual std::size_t traverse() = 0;

  /// So many reads of an attribute of the root, in turn as int, double, bool and string; the sum of what was read.
  virtual double read_typed(int reads) = 0;

  /// The number of nodes that an XPath expression selects; -1 where the library has no XPath.
  virtual long select(std::string const& xpath) = 0;

  /// So many rounds of making an element with an attribute, appending it to the root and removing it.
  virtual void churn(int rounds) = 0;

  virtual bool save(std::string const& file) = 0;
};

std::unique_ptr<Subject> make_axs();
std::unique_ptr<Subject> make_libxml2();
std::unique_ptr<Subject> make_xerces();
std::unique_ptr<Subject> make_pugixml();
