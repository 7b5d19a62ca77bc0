#pragma once

#include <string>
#include <vector>

/// One test of the W3C's XML conformance suite.
struct XmlTest
{
  /// The name that it has nowhere else in the suite.
  std::string id;

  /// The folder of its collection in the suite, such as "ibm/xml-1.1".
  std::string collection;

  /// What the suite says of the document: "valid" and "invalid" ones are well-formed, "not-wf" ones are not, and of one
  /// that is in "error" a processor may say either.
  std::string type;

  /// Whether it is one of the fifth edition of XML 1.0, or of all; others are of editions before that.
  bool is_of_fifth_edition;

  /// The document, and the document with the same data in canonical form; the latter empty where there is none.
  std::string file;
  std::string canonical_file;
};

/// The tests in the catalogue of the suite that was unpacked in `folder`, in the order of the catalogue. Throws
/// std::runtime_error when it cannot be read.
std::vector<XmlTest> read_xml_suite(std::string const& folder);
