#pragma once

#include <apPath.h>

#include <string>
#include <string_view>

/// System identifiers (XML 1.0, 4.2.2) and other references to files, such as those of schemas, as this computer takes
/// them. Safe from several threads at once.
namespace axsSystemId
{
/// The file that `reference` names, which stands in the file `base`; without a base, in the working folder. Empty where it
/// names nothing that is here: nothing is ever looked for on a network, neither by a URL nor in the folders of other
/// computers.
///
/// A relative path begins in the folder of `base`; an absolute one and a "file:" URL are taken as well. In a path, the file
/// of just that name counts, if there is one; otherwise, and always in a URL, each %XX stands for a byte (RFC 3986, 2.1).
/// "." and ".." are resolved by the text of the path (RFC 3986, 5.2.4).
apPath resolve(apPath const& base, std::string_view reference);

/// `text` with the bytes for which its %XX stand.
std::string decoded(std::string_view text);
}
