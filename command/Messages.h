#pragma once

#include <iosfwd>

/// Where this thread says what a user has to know: standard error, or what a MessageScope has put in its place.
std::ostream& messages();

/// As long as it lives, messages of this thread go to the stream that it was given.
class MessageScope
{
public:
  explicit MessageScope(std::ostream& stream);
  MessageScope(MessageScope const&) = delete;
  MessageScope& operator=(MessageScope const&) = delete;
  ~MessageScope();

private:
  std::ostream* const before;
};
