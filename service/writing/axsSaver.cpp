#include "axsSaver.h"

#include "axsNamespaceCheck.h"
#include "axsTree.h"
#include "axsWriter.h"

#include <apAtomicFile.h>

bool axsSaver::save(axsTree const& document, apByteArray& output) noexcept
try
{
  std::string xml;
  if (!axsNamespaceCheck::holds(document) || !axsWriter::write(document, xml))
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
  if (!axsNamespaceCheck::holds(document))
    return false;
  apAtomicFile file(path);
  return file.stream() != nullptr && axsWriter::write(document, file.stream()) && file.commit();
}
catch (...)
{
  return false;
}
