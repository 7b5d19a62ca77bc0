#pragma once

#include <xercesc/util/XercesDefs.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>

#include <string>

/// What is wrong with a value, in words for those who write documents: of which type it is not, and what that asks for.
/// The validator's own texts are about how it found out.
namespace axsValueFault
{
/// Whether the type takes the value.
bool is_of(xercesc::DatatypeValidator& type, XMLCh const* value);

/// The words for `value`, which is not of `type`. `code` (XMLExcepts) and `text` are what the validator said.
std::string words(xercesc::DatatypeValidator& type, XMLCh const* value, unsigned int code, std::string const& text);

/// `text`, with the value if it is not in it.
std::string with_value(std::string const& text, XMLCh const* value);
}
