#pragma once

/// Marks the constructors and operations of a container that take over the elements of another one.
/// Elements that can be copied are copied; sole owners cannot, so what they own moves and the source keeps empty ones.
struct utCopy
{
};
