#pragma once

#include "axsParser.h"
#include "axsSource.h"
#include "axsWalkHandler.h"

#include <axmLoadOptions.h>
#include <axmParseError.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The walk of a reader: its parser, the elements that are entered, and the errors.
class axsXmlWalk
{
public:
  /// Opens the document from its beginning; throws axsReadError as axsSource does.
  using Open = std::function<std::unique_ptr<axsSource>()>;

  axsXmlWalk(Open open, axmLoadOptions const& options);

  bool begin();
  bool down_to(std::string_view name);
  void up();
  std::string_view const* attribute(std::string_view name);
  std::string_view text();

  std::string encoding() const;
  std::vector<axmParseError> errors;

private:
  struct Level
  {
    axsWalkHandler::Attributes attributes;
    axsParser::Mark content{};
    // Whether it has ended where it began, as an empty element does.
    bool is_empty = false;
  };

  void start();
  void read_to_root();
  bool enter_root(std::string_view name);
  bool enter_child(std::string_view name);
  void go_back();
  void pass_to(std::uint64_t depth);
  void fail(axsReadError const& error);
  void fail(char const* message);
  Level& level_at(std::size_t depth);

  Open const open_source;
  axmLoadOptions const options;
  std::unique_ptr<axsSource> source;
  std::unique_ptr<axsWalkHandler> handler;
  std::unique_ptr<axsParser> parser;
  // More of them than there are entered elements, for their memory's sake. The first one is of the root, entered or not.
  std::vector<std::unique_ptr<Level>> levels;
  std::size_t depth = 0;
  bool is_over = false;
  // Whether the last search found nothing: then reading stands before the end of the content or of the document, and has
  // to go back to its beginning once something there is asked for.
  bool has_missed = false;
  // The text at this place, if it was asked for.
  std::optional<std::string> text_here;
};
