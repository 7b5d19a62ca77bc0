#pragma once

/// Asks a constructor of the node interfaces to be compiled where it is called. For engines, which make nodes by the
/// million: the constructors without arguments are calls into the library.
struct axmInPlace
{
};
