#pragma once

#include <axmDocument.h>
#include <axmElement.h>
#include <axmNode.h>
#include <axmNodeList.h>

#include <memory>
#include <string>

/// What the tests ask expressions of: documents of the engine, and answers as text that can be read in a failure.
namespace subject
{
/// The document that `text` is, loaded by the engine from the registry. Ends the test program if it does not load.
std::shared_ptr<axmDocument> load(std::string const& text);

std::shared_ptr<axmDocument> create(char const* root_name);

std::string utf8(apString const& text);

/// How a node is shown: an element as its name and, after '#', its attribute id; an attribute as "@name=value", a text
/// in quotes, a comment as "<!--data-->", an instruction as "<?target?>", the document as "/".
std::string label(axmNode& node);

/// The nodes that an expression gives, separated by blanks; "error at P: M" where it is wrong.
std::string nodes(axmNode& context, std::string const& expression);

/// The value of an expression as its function string() has it, after its type: "number 1".
std::string value(axmNode& context, std::string const& expression);

/// The same for a document in which nothing stands.
std::string value(std::string const& expression);
}
