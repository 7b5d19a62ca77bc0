#pragma once

#include "axmExport.h"

#include <utPtrRelease.h>
#include <utString.h>

class axmOpenTags;
struct axmTagName;

/// A place in an XML document that is in memory, and the element that is read from there.
///
/// The document is narrow text that ends with a NUL. The cursor neither owns nor changes it, and it must outlive the
/// cursor; a cursor may be copied, and the copy goes its own way. Two cursors may read one document from two threads.
///
/// What is not as the cursor needs it is thrown, by value: axmEndException where the document ends too early (also on any
/// step onto the closing NUL, so the last character can be looked at but never passed), axmCharException where a
/// character is missing, axmTagException where tags do not match. The cursor then stays where it met the error.
/// Operations that hand out text throw std::bad_alloc when memory runs out.
///
/// It is a scanner and no parser. White space is space, TAB, LF and CR. A tag ends at the first `>`, be it in quotes; a
/// tag's name ends at the first space or `>` and nowhere else; names are found by their beginning, so `item` finds
/// `<items>`. Entities stay as they are written. Instructions and `<!DOCTYPE` count as elements.
class AXM_API axmPositionX
{
public:
  /// Stands at `buffer`, which is also where its element begins.
  axmPositionX(char* buffer);
  axmPositionX(axmPositionX const& other);
  axmPositionX& operator=(axmPositionX const& other);
  ~axmPositionX();

  /// The value of the attribute `name` in the opening tag of the element, as written between its quotes;
  /// `default_value` if there is none. The cursor does not move.
  ///
  /// The first attribute of that very name counts; the quote is whatever character follows the `=`; white space before
  /// the `=` belongs to the name. Only `>` ends the search: in a self-closing tag, a search for an attribute that is not
  /// there goes on after the tag, and may find one that belongs to a later element.
  utString attribute(utString const& name, utString const& default_value) const;

  /// Passes the children of the element that are left. The cursor stands at the end of the opening tag of the element
  /// then, as it does whenever it has come to the end of its element.
  /// A child whose name begins with "Invalid" is found and never passed: with one, this operation does not return.
  void end_object();

  /// A new cursor on the next child element whose name begins with `name`, set up to read its content, with this cursor
  /// left in front of that child; the caller owns it. Null if there is no such child from here on: this cursor then
  /// stands at the end of the opening tag of its element, so that the next search begins with the first child.
  /// The first argument says that ownership passes to the caller, whatever its value.
  axmPositionX* go_to_sub_tag(utPtrRelease release, utString const& name);

  /// The name of the second tag from the beginning of the element on, where the first is an opening tag: after an XML
  /// declaration, that of the root element. The cursor does not move.
  utString initial_tag() const;

  /// Passes comments, the opening tag and white space, so that the cursor stands in the content of the element; the
  /// element then begins after those comments. A self-closing tag is passed in the same way, and the cursor stands
  /// at the end of the element then.
  void object_setup();

  /// The text up to the next tag, whatever tag that is, with comments left out. A CDATA section adds its content, and
  /// the text between it and the comment or section before it is lost.
  utString read_text();

  /// Passes a whole element, from its opening tag on, nested however deep. Throws std::bad_alloc when memory runs out.
  void skip_object();

  /// The first text of the element from here on, with the white space before it, up to the next tag; child elements and
  /// comments before it are passed. If there is none, the result is empty and the cursor stands at the end of the opening
  /// tag.
  utString text_node();

protected:
  /// The next character to look at.
  char* current() const;

  /// Steps over one character and returns it.
  char read_char();
  void move_on();

  bool is_char(char c) const;
  bool is_whitespace() const;

  /// Whether `s` stands here. Throws axmEndException where the comparison comes to the last character of the document.
  bool is_string(utString const& s) const;

  bool is_closing_tag() const;
  bool is_comment() const;
  bool is_cdata() const;
  bool is_tag() const;
  bool is_opening_tag() const;

  /// Whether a `/` stands in front of the next `>`.
  bool self_closing_tag() const;

  /// Whether an opening or closing tag stands here whose name begins with `name`.
  bool is_tag_name(utString const& name) const;

  void skip_char(char c);
  void skip_whitespace();
  void skip_string(utString const& s);
  void skip_tag();
  void skip_comment();

  /// The text up to `c`, on which the cursor stays.
  utString read_string_to_char(char c);

  /// The name of the opening or closing tag that stands here. The cursor does not move.
  utString read_tag() const;

  /// The content of the CDATA section that stands here.
  utString read_cdata();

  /// As attribute(), from the `<` on which the cursor stands; the cursor moves.
  utString find_attribute(utString const& name, utString const& default_value);

  /// Moves to the next child element whose name begins with `name`; false, and at the end of the opening tag, if there is
  /// none.
  bool find_sub_tag(utString const& name);

  /// The text from `from` up to here.
  utString make_string_from(char const* from);

  [[noreturn]] void throw_char_error_x(char c);
  [[noreturn]] void throw_end_error_x();
  [[noreturn]] void throw_tag_error_x(utString const& text);

  /// The same for operations that do not move.
  utString make_string_from(char const* from) const;
  [[noreturn]] void throw_char_error_x(char c) const;
  [[noreturn]] void throw_end_error_x() const;
  [[noreturn]] void throw_tag_error_x(utString const& text) const;

  char* current_pos;
  char* object_start;

private:
  axmTagName tag_name() const;
  bool begins_with(char const* pattern, int length) const;
  bool is_tag_named(axmTagName name) const;
  void skip_pattern(char const* pattern, int length);
  void skip_to(char c);
  void skip_marked(char mark);
  axmTagName skip_cdata();
  void open_object(axmOpenTags& open);
  void close_object(axmOpenTags& open);
  void return_to_start();
};
