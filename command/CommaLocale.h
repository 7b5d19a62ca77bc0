#pragma once

#include <filesystem>

/// A locale with a decimal comma for the checks that need one: a system may have none installed.
namespace comma_locale
{
/// Makes one in `folder`, as localedef does, and has the processes that are started from now on find it as
/// axm_utest_comma beside those of the system. Where locales are not those of the GNU C library nothing is done.
void provide(std::filesystem::path const& folder);
}
