#pragma once

#include <string>
#include <string_view>

class axsInputStack;

/// Markup that holds any text up to what ends it: comments, CDATA sections and processing instructions.
namespace axsSection
{
/// Each reads one from after what begins it and moves after what ends it. The data stands where it was read or, where its
/// line ends do not stay as they are, in `normal`. Throws as the input does.
///
/// 2.5, [15] Comment, from after "<!--"
std::string_view read_comment(axsInputStack& input, char const*& p, std::string& normal);

/// 2.7, [20] CData, from after "<![CDATA["
std::string_view read_cdata(axsInputStack& input, char const*& p, std::string& normal);

struct Instruction
{
  std::string_view target;
  std::string_view data;
};

/// 2.6, [16] PI, from after "<?". `is_before_root` tells where it stands, for what is said of a misplaced XML declaration.
Instruction read_instruction(axsInputStack& input, char const*& p, std::string& normal, bool is_before_root);
}
