#pragma once

struct axsParticle;

/// What is wrong with a content model, and the two particles of which it is.
struct axsContentProblem
{
  enum class Kind
  {
    none,
    ambiguous,   // a child can be meant by both (Part 1, 3.8.6 cos-nonambig)
    inconsistent // both are of one name but of different types (cos-element-consistent)
  };

  Kind kind = Kind::none;
  axsParticle const* first = nullptr;
  axsParticle const* second = nullptr;

  explicit operator bool() const noexcept { return kind != Kind::none; }
};
