#include "axsPattern.h"

#include "axsPatternParser.h"
#include "axsPatternPool.h"
#include "axsPatternProgram.h"

#include <utility>

axsPattern::axsPattern(std::string_view text, std::unique_ptr<axsPatternProgram const> compiled)
  : source(text),
    program(std::move(compiled)),
    pool(std::make_unique<axsPatternPool>(*program))
{
}

axsPattern::~axsPattern() = default;

std::unique_ptr<axsPattern const> axsPattern::compile(std::string_view text, Fault& fault)
{
  axsPatternTree tree;
  if (!axsPatternParser(text, fault).parse(tree))
    return nullptr;
  std::unique_ptr<axsPatternProgram const> program = axsPatternProgram::build(std::move(tree), fault);
  if (program == nullptr)
    return nullptr;
  return std::unique_ptr<axsPattern const>(new axsPattern(text, std::move(program)));
}

bool axsPattern::matches(std::string_view value) const
{
  return pool->matches(value);
}
