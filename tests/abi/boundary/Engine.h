#pragma once

#include <axmElement.h>
#include <axmException.h>
#include <coExport.h>

#if defined(ENGINE_BUILDING)
#  define ENGINE_API CO_SYMBOL_EXPORT
#else
#  define ENGINE_API CO_SYMBOL_IMPORT
#endif

/// An exception of the engine's own: a kind of the library's.
class ENGINE_API EngineException : public axmException
{
public:
  EngineException();
  ~EngineException() override;
  utString explanation() const override;
};

/// The smallest engine there can be, in a binary of its own: a factory that makes nothing and an element without a tree.
namespace engine
{
/// Registers a factory under "Boundary".
ENGINE_API void register_factory();

/// An element whose attributes are what was set.
ENGINE_API std::shared_ptr<axmElement> make_element();

/// The same, but that asking for its attributes throws EngineException.
ENGINE_API std::shared_ptr<axmElement> make_throwing_element();
}
