#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What the model of documents knows of characters. Texts are wide, as the interfaces have them. Not installed.
namespace axmModelText
{
// The character that begins at `at`, in one `wchar_t` or two, and the place after it. Half a character stands for itself.
char32_t next_character(std::wstring_view text, std::size_t& at);

// XML 1.0, 2.2, [2] Char: whether all characters may stand in a document.
bool is_storable(std::wstring_view text);

// XML 1.0, 2.3, [5] Name.
bool is_name(std::wstring_view text);

// XML 1.0, 2.3, [3] S: whether there is nothing but white space. True for the empty text.
bool is_white(std::wstring_view text);

// The text as a C++ expression: L"a\x43F".
std::string quoted(std::wstring_view text);
}
