#pragma once

#include <axmDocumentFactory.h>

#include <memory>

/// The factory of the engine that the program was built with, registered under "XMLService"; empty if it has none.
std::shared_ptr<axmDocumentFactory> built_in_engine();
