#pragma once

#include <memory>

/// Watches over standard output.
class StandardOutput
{
public:
  /// Remembers what it is now.
  StandardOutput();
  StandardOutput(StandardOutput const&) = delete;
  StandardOutput& operator=(StandardOutput const&) = delete;
  ~StandardOutput();

  /// Whether it is what it was.
  bool is_open() const;

private:
  struct Identity;
  std::unique_ptr<Identity> identity;
};
