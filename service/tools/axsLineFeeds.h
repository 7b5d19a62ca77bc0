#pragma once

#include <string>

/// Line ends as a parser tells of them.
namespace axsLineFeeds
{
/// Makes every line end of a text as it is written a line feed (XML 1.0, 2.11; XML 1.1, 2.11).
void normalise(std::string& text, bool is_xml_1_1);
}
