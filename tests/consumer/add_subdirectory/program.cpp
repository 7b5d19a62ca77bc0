// What a program does that uses libraries built with it: it includes a header by its bare name and links with the target.

#include <apString.h>

#include <cstdio>

int main()
{
  std::printf("%s\n", APSTRING("example.xsd").to_utf8().c_str());
  return 0;
}
