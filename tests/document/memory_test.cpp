// Typed access to attributes when memory runs out: a failure as any other.

#include "../FailingMemory.h"
#include "../TestLocale.h"
#include "TestTree.h"

#include <gtest/gtest.h>

namespace
{
// Longer than what lies in the object itself and takes no memory.
apString const name(L"the name of an attribute");

// Sets an attribute again and again, with more and more memory, until that succeeds; expects false and the old value
// until then. Returns how often it failed.
template <class Set>
int failures_to_set(Set set)
{
  TestElement element;
  element.setAttribute(name, L"old");
  axmNode& node = element;
  int failures = 0;
  for (bool done = false; !done; ++failures)
  {
    {
      FailingMemory const memory(failures);
      done = set(node);
    }
    EXPECT_EQ(element.getAttribute(name).view() == L"old", !done);
  }
  return failures - 1;
}

// The same for getting one whose text is `text`.
template <class Type, class Get>
int failures_to_get(apString const& text, Type before, Type after, Get get)
{
  TestElement element;
  element.setAttribute(name, text);
  axmNode const& node = element;
  int failures = 0;
  for (bool done = false; !done; ++failures)
  {
    Type value = before;
    {
      FailingMemory const memory(failures);
      done = get(node, value);
    }
    EXPECT_EQ(value, done ? after : before);
  }
  return failures - 1;
}

// An element whose attributes take memory to look up and to set.
class Costly : public TestElement
{
public:
  std::shared_ptr<axmNamedNodeMap> getAttributes() override
  {
    apString const taken(L"a text that takes memory");
    return TestElement::getAttributes();
  }
};
}

TEST(axmNode_memory, setters_return_false_and_change_nothing)
{
  EXPECT_GT(failures_to_set([](axmNode& node) { return node.set_attribute(name, true); }), 0);
  EXPECT_GT(failures_to_set([](axmNode& node) { return node.set_attribute(name, 123); }), 0);
  EXPECT_GT(failures_to_set([](axmNode& node) { return node.set_attribute(name, 123u); }), 0);
  EXPECT_GT(failures_to_set([](axmNode& node) { return node.set_attribute(name, 1.5); }), 0);
  EXPECT_GT(failures_to_set([](axmNode& node) { return node.set_attribute_locale(name, 1.5); }), 0);
  apString const text(L"text");
  EXPECT_GT(failures_to_set([&text](axmNode& node) { return node.set_attribute(name, text); }), 0);
}

TEST(axmNode_memory, getters_return_false_and_leave_the_output)
{
  Costly element;
  element.setAttribute(name, L"1");
  axmNode const& node = element;
  bool truth = false;
  int whole = 7;
  double number = 7.5;
  apString text(L"before");
  bool results[5] = {};
  {
    FailingMemory const memory(0);
    results[0] = node.get_attribute(name, truth);
    results[1] = node.get_attribute(name, text);
    results[2] = node.get_attribute(name, whole);
    results[3] = node.get_attribute(name, number);
    results[4] = node.get_attribute_locale(name, number);
  }
  for (bool const result : results)
    EXPECT_FALSE(result);
  EXPECT_FALSE(truth);
  EXPECT_EQ(text.view(), L"before");
  EXPECT_EQ(whole, 7);
  EXPECT_EQ(number, 7.5);
}

TEST(axmNode_memory, getter_for_doubles_returns_false_and_leaves_the_output_in_a_locale_with_a_comma)
{
  TestLocale const locale(TestLocale::comma);
  EXPECT_GT(failures_to_get(L"1.50000000000000000000000000", 7.5, 1.5,
              [](axmNode const& node, double& value) { return node.get_attribute(name, value); }),
    0);
}

TEST(axmNode_memory, getters_need_none_of_their_own_in_the_C_locale)
{
  EXPECT_EQ(failures_to_get(
              L"1.5", 7.5, 1.5, [](axmNode const& node, double& value) { return node.get_attribute(name, value); }),
    0);
  EXPECT_EQ(
    failures_to_get(L"12", 7, 12, [](axmNode const& node, int& value) { return node.get_attribute(name, value); }), 0);
  EXPECT_EQ(failures_to_get(
              L"true", false, true, [](axmNode const& node, bool& value) { return node.get_attribute(name, value); }),
    0);
}
