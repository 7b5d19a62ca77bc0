#pragma once

#include <random>
#include <string>

/// Documents that chance has changed in one to three places: most are wrong, the others are what a judge must read alike.
class MutatedDocuments
{
public:
  explicit MutatedDocuments(unsigned int seed) : random(seed) {}

  std::string next();

private:
  std::size_t below(std::size_t bound);
  void change(std::string& document);

  std::mt19937 random;
};
