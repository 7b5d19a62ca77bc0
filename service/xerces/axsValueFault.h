#pragma once

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/XercesDefs.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>

#include <string>

/// What is wrong with a value, in words for those who write documents: of which type it is not, and what that asks for.
/// The validator's own texts are about how it found out.
namespace axsValueFault
{
/// Whether the type takes the value. What that takes comes from `memory`.
bool is_of(xercesc::DatatypeValidator& type, XMLCh const* value, xercesc::MemoryManager& memory);

/// The words for `value`, which is not of `type`. `code` (XMLExcepts) and `text` are what the validator said.
std::string words(xercesc::DatatypeValidator& type, XMLCh const* value, unsigned int code, std::string const& text,
  xercesc::MemoryManager& memory);

/// `text` without the middle of a long value in it.
std::string shortened(std::string const& text);

/// `text`, with the value if it is not in it.
std::string with_value(std::string const& text, XMLCh const* value);
}
