#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A particle of a content model that was drawn.
struct DrawnParticle
{
  enum class Kind
  {
    element,
    head, // of the substitution group of h and m
    sequence,
    choice,
    all,
    any // element of another namespace
  };

  static constexpr unsigned many = 1000; // stands for unbounded

  Kind kind = Kind::element;
  unsigned min = 1;
  unsigned max = 1;
  std::string name;
  std::vector<DrawnParticle> parts;
};

/// Says of a content what it takes, slowly: it follows all that may come next, as the definitions of particles and model
/// groups have it (XML Schema Part 1, 3.8.4 and 3.9.4), and shares nothing with the engine.
class ContentOracle
{
public:
  /// Of the particles, one after the other, which must live longer.
  explicit ContentOracle(std::vector<DrawnParticle const*> const& content);

  /// What an element of another namespace is called.
  static char const* other() noexcept { return "*"; }

  /// Whether these children, by their names, are such a content.
  bool takes(std::vector<std::string> const& children) const;

  /// Whether after some children the next one may be of one of two particles (3.8.6, cos-nonambig).
  bool is_ambiguous() const;

private:
  struct Term;
  using Terms = std::vector<std::shared_ptr<Term const>>;
  using Ways = std::vector<std::pair<DrawnParticle const*, std::shared_ptr<Term const>>>;

  static std::shared_ptr<Term const> term_of(DrawnParticle const& particle);
  static std::shared_ptr<Term const> sequence_of(Terms const& parts);
  static bool is_nullable(Term const& term);
  static std::shared_ptr<Term const> left_of(Term const& term, std::size_t part);
  static void find_ways(Term const& term, std::string const& name, Ways& ways);
  static std::string key_of(Term const& term);
  static Terms step(Terms const& from, std::string const& name, bool& is_ambiguous);

  std::shared_ptr<Term const> whole;
};
