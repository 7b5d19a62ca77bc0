#pragma once

#include "axsSchemaElement.h"

#include <apPath.h>

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>

class axsSource;

/// One schema document as the elements and attributes that it has, before anybody asks what they mean.
class axsSchemaDocument
{
public:
  /// Reads the source; its places get the number `file`. Throws axsReadError when it cannot be read, is not well-formed or
  /// its root is not xs:schema, std::bad_alloc when memory runs out.
  axsSchemaDocument(axsSource& source, std::uint32_t file);

  axsSchemaDocument(axsSchemaDocument const&) = delete;
  axsSchemaDocument& operator=(axsSchemaDocument const&) = delete;
  ~axsSchemaDocument();

  axsSchemaElement const& root() const noexcept { return *root_element; }
  std::uint32_t file() const noexcept { return number; }

private:
  class Builder;

  std::pmr::monotonic_buffer_resource memory;
  axsSchemaElement const* root_element = nullptr;
  std::uint32_t number;
};
