#pragma once

/// Identifiers of what is outside the document, in memory as axsCharacters wants it. Of system identifiers, only those in
/// ASCII without '<' and '&' are known here.
/// Each moves behind what it expects at `at`. False where there is none; `at` is then where that shows.
namespace axsExternalId
{
/// 4.2.2, [75] ExternalID
bool skip(char const*& at);

/// That or, what notations may have, a public identifier alone (4.7, [83] PublicID).
bool skip_of_notation(char const*& at);
}
