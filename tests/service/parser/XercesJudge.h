#pragma once

#include <string>
#include <string_view>

/// Xerces-C, another parser of XML 1.0, XML 1.1 and their namespaces, as a judge of ours. It reads nothing outside of
/// the document.
namespace XercesJudge
{
/// The events of the document as EventText has them, in `events`. False where it is refused, `events` is then why.
bool read(std::string_view document, std::string& events);
}
