#pragma once

#include <string>
#include <string_view>

/// The names of encodings (XML 1.0, 4.3.3; registered by IANA). Safe from several threads at once.
namespace axsEncodingName
{
/// The one name that we use for an encoding with many. What differs only in case and punctuation is the same name, as
/// "utf8" and "UTF-8" are. A name that we do not know is given back as it is.
std::string preferred(std::string_view name);

/// Whether `text` may be the name of an encoding: [81] EncName.
bool is_name(std::string_view text) noexcept;
}
