#pragma once

#include <axmDocumentFactory.h>

#include <memory>
#include <string>

/// Engines in libraries that are loaded at run time; see axmEngine.h.
class EngineLibrary
{
public:
  /// Loads the library `name`, a path in UTF-8 or a name that the system finds, and returns the factory that it registers.
  /// Empty on failure, with `error` saying why. What was registered before is not anymore then.
  static std::shared_ptr<axmDocumentFactory> load(std::string const& name, std::string& error);
};
