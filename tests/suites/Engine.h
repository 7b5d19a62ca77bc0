#pragma once

#include <axmDocumentFactory.h>

#include <memory>

/// The engine as a program finds it: by its name in the registry.
std::shared_ptr<axmDocumentFactory> engine();
