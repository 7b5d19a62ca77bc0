#pragma once

/// As long as it lives, a console takes what the program writes for UTF-8; and standard output takes every byte as it is,
/// line ends included. Only one system needs to be told.
class Utf8Console
{
public:
  Utf8Console();
  Utf8Console(Utf8Console const&) = delete;
  Utf8Console& operator=(Utf8Console const&) = delete;
  ~Utf8Console();

private:
  [[maybe_unused]] unsigned int const code_page_before;
};
