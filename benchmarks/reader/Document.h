#pragma once

#include "Digest.h"
#include "Task.h"

#include <string>
#include <vector>

// A document as it is given to all contenders, and all that can be taken out of it.
//
// The reader goes by rules of its own, under which some documents cannot be walked at all. These get a copy, the same for
// all contenders, in which what stands in the way is written differently; the notes say what. What the reader answers in
// another way than the others even so is left out of the task, and counted.
class Document
{
public:
  // Writes the copy to `copy`. Throws std::runtime_error when the file cannot be read or is not well-formed.
  Document(std::string const& file, std::string const& copy);

  std::string file; // the copy
  std::vector<std::string> notes;
  Task task;
  long values_taken = 0;
  long values_left_out = 0;

  // What everyone has to find: as it is written, and with entities replaced by what they stand for.
  Digest written{0};
  Digest decoded{0};

private:
  void find_values(std::string const& text);
};
