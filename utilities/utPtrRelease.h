#pragma once

/// How an operation lets go of a pointer. It is the first argument of operations that hand a newly allocated object to
/// the caller, marks the transfer of ownership there, and carries no other meaning.
enum utPtrRelease : int
{
  /// A new object, which the caller owns from now on.
  utPtrReleaseToCaller = 3
};
