#pragma once

#include <memory>
#include <string>

/// A way to validate files. The schema is compiled by the constructor of what is made.
class Contender
{
public:
  virtual ~Contender() = default;

  /// Whether the document is valid.
  virtual bool run(std::string const& document) = 0;
};

using MakeContender = std::unique_ptr<Contender> (*)(std::string const& schema);

// Ours: a load without validation, one with, and a check without a tree.
std::unique_ptr<Contender> make_axs_load(std::string const& schema);
std::unique_ptr<Contender> make_axs_validated_load(std::string const& schema);
std::unique_ptr<Contender> make_axs_check(std::string const& schema);

// libxml2: a tree that is validated then, and validation of what its parser tells.
std::unique_ptr<Contender> make_libxml2_tree(std::string const& schema);
std::unique_ptr<Contender> make_libxml2_stream(std::string const& schema);

// Reads and compiles a schema anew, and says whether it is right.
bool compile_with_axs(std::string const& schema);
bool compile_with_libxml2(std::string const& schema);

// Xerces-C with a grammar that is kept: a tree that is validated on the way, and its SAX parser, which makes none.
std::unique_ptr<Contender> make_xerces_dom(std::string const& schema);
std::unique_ptr<Contender> make_xerces_sax(std::string const& schema);
