#pragma once

#include "axmExport.h"

/// Is told of every group of checks of this process and may leave it out, so that a run can be taken apart.
///
/// Interface. Not owned by what it is set with. It is called on the thread that runs the checks.
class AXM_API axmUtestGroupListener
{
public:
  axmUtestGroupListener();
  axmUtestGroupListener(axmUtestGroupListener const&) = delete;
  axmUtestGroupListener& operator=(axmUtestGroupListener const&) = delete;
  virtual ~axmUtestGroupListener();

  /// The listener in charge; null, from the start, if there is none.
  static axmUtestGroupListener* get();

  /// Puts `listener` in charge of the whole process, null for none. It must live until it is replaced. Not to be called
  /// while checks run.
  static void set(axmUtestGroupListener* listener);

  /// The group `name` is about to run; false leaves it out. The groups of a class come in the same order in every run.
  virtual bool begins(char const* name) = 0;

  /// The group `name`, which was not left out, is over.
  virtual void ended(char const* name) = 0;
};
