#pragma once

#include "axmAbstractXmlReader.h"
#include "axmExport.h"
#include "axmInitialPositionXcoPrg.h"
#include "axmPositionXcoPageArrPrgcoPrgcoPageArr.h"

#include <apITarnFilecoPrf.h>
#include <charcoDynArr.h>
#include <utStringcoPageArr.h>

#include <memory>

class axmElementWalk;

/// The streaming reader of the library: the whole file in memory, and a stack of cursors over it, one for each element
/// entered.
///
/// Made by axmSimpleXmlFactory. It owns the bytes of the file and the cursors, and shares the file. What the cursors do
/// (axmPositionX) holds here: names match by their beginning, entities stay as they are written, a self-closing element is
/// entered as if what follows it were its content. What they throw becomes an error of the reader.
class AXM_API axmSimpleXmlReader : public axmAbstractXmlReader
{
public:
  ~axmSimpleXmlReader() override;

  /// Reads the whole file, and the encoding from its declaration. False without an error in the list when the file
  /// cannot be read whole, has 2 GiB or more, or declares "utf-16" (in any case of letters); false with one when the
  /// declaration is not as axmInitialPositionX needs it; then there is nothing to walk.
  /// A further call reads the file as it is by then. The errors stay, and so do the elements that are entered: their
  /// cursors stand as many bytes from the beginning of the text as they stood before, at its end if it has become too
  /// short for that. Where no element is entered, a new walk begins.
  bool read_file() override;

  /// "Unknown" until a declaration has been read; then what axmInitialPositionX::encoding() says.
  utString encoding() override;

  /// An error outside any element: "Incorrect xml nesting". When the outermost element is left, down_to() finds it again.
  void up() override;

  /// Also passes over what does not match, which then must be well-formed by the rules of the cursors. After a false
  /// result the next search begins with the first child of the current element. An error before a successful
  /// read_file(): "No xml file has been read".
  bool down_to(utString const& name) override;

  /// As axmPositionX::attribute() has it. An error outside any element: "Incorrect xml nesting".
  utString attribute(utString const& name, utString const& default_value) override;

  /// As axmPositionX::text_node() has it. An error outside any element: "Incorrect xml nesting".
  utString text_node() override;

  bool has_error_occurred() const override;

  /// Nothing is written between the errors.
  void dump_error(std::ostream& out) const override;

  /// Puts `message` in the list of errors; from now on the reader is in error.
  void error_has_occurred(utString const& message);

private:
  friend class axmSimpleXmlFactory;

  explicit axmSimpleXmlReader(apITarnFilecoPrf const& file);

  int file_size();
  bool read_bytes(int size);
  bool read_declaration();
  bool is_inside();
  void add_cursor(int depth);

  utString encoding_name;
  axmInitialPositionXcoPrg initial_position;
  axmPositionXcoPageArrPrgcoPrgcoPageArr positions;
  utStringcoPageArr errors;
  apITarnFilecoPrf file;
  charcoDynArr buffer;
  bool error_flag = false;

  // What has been learnt about the text on the way, all of which could be found again: it makes the walk fast and changes
  // no answer.
  std::unique_ptr<axmElementWalk> walk;
};
