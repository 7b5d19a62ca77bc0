#include "axsSaver.h"

#include "axsDocumentTypeCheck.h"
#include "axsNamespaceCheck.h"
#include "axsSaveFault.h"
#include "axsTree.h"
#include "axsWriter.h"

#include <apAtomicFile.h>

namespace
{
// What a node by itself does not show.
bool can_be_read_again(axsTree const& document, axsSaveFault& fault)
{
  return axsNamespaceCheck::holds(document, fault) && axsDocumentTypeCheck::holds(document, fault);
}
}

std::string axsSaver::obstacle(axsTree const& document)
{
  axsSaveFault fault;
  std::string xml;
  if (can_be_read_again(document, fault))
    axsWriter::write(document, xml, fault);
  return fault.text();
}

bool axsSaver::save(axsTree const& document, apByteArray& output) noexcept
try
{
  axsSaveFault fault;
  std::string xml;
  if (!can_be_read_again(document, fault) || !axsWriter::write(document, xml))
    return false;
  output = apByteArray(xml.data(), xml.size());
  return true;
}
catch (...)
{
  return false;
}

bool axsSaver::save(axsTree const& document, apPath const& path) noexcept
try
{
  axsSaveFault fault;
  if (!can_be_read_again(document, fault))
    return false;
  apAtomicFile file(path);
  return file.stream() != nullptr && axsWriter::write(document, file.stream()) && file.commit();
}
catch (...)
{
  return false;
}
