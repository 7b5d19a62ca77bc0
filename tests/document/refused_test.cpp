// Compiled by a test of its own, once as it stands and once with AXM_REFUSED, which must not compile: a pointer that is
// no text, given as the value of an attribute, would be taken for a bool.

#include <axmElement.h>

bool set_all(axmNode& node, axmElement& element)
{
  apString const name(L"name");
#if defined(AXM_REFUSED)
  return node.set_attribute(name, AXM_REFUSED);
#else
  return node.set_attribute(name, apString(L"text")) && node.set_attribute(name, APSTRING("text")) &&
         node.set_attribute(name, true) && node.set_attribute(name, 1) && node.set_attribute(name, 1u) &&
         node.set_attribute(name, 1.5) && element.set_attribute(name, utString("text")) &&
         node.set_attribute(name, L"text") && node.set_attribute(name, "text") &&
         node.set_attribute(name, name.c_str());
#endif
}
