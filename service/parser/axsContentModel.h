#pragma once

#include <string>

class axsDeclarationReader;

/// The content models of element declarations (3.2, [46] contentspec).
namespace axsContentModel
{
/// Reads one and returns it without white space. Groups may be nested as deep as memory lasts. Throws as the reader does.
std::string read(axsDeclarationReader& reader);
}
