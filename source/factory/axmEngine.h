#pragma once

#include <coExport.h>

/// The way into a library that holds an engine and is loaded at run time: such a library defines this function. It
/// registers the engine's factory (axmDocumentFactory) under "XMLService" with utService. It is called once after the
/// library was loaded; it must not throw. The library stays loaded as long as the process lives, since nodes may be held
/// that long. Standard output is the program's. Once its factory and all that this made are released, no thread of the
/// engine runs.
extern "C" CO_SYMBOL_EXPORT void axm_register_engine();
