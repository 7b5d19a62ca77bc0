#pragma once

#include <string>
#include <string_view>

/// Text as it is written in a document so that it is read as what it is.
namespace axsMarkupText
{
/// The value of an attribute, with quotes around it: " or '.
std::string value(std::string_view text, char quote, bool is_xml_1_1);

/// Character data.
std::string content(std::string_view text, bool is_xml_1_1);
}
