#include "axsDocumentFactory.h"

#include "axsHandle.h"
#include "axsLoadAttempt.h"
#include "axsLoader.h"
#include "axsSaver.h"
#include "axsSaving.h"

#include <memory>
#include <new>

namespace
{
axsDomDocument* own_document(std::shared_ptr<axmDocument> const& document)
{
  axsNode* const node = document == nullptr ? nullptr : axsHandle::node_of(*document);
  return node == nullptr || !node->is_document() ? nullptr : static_cast<axsDomDocument*>(node);
}
}

axsDocumentFactory::axsDocumentFactory() = default;
axsDocumentFactory::~axsDocumentFactory() = default;

std::shared_ptr<axmDocument> axsDocumentFactory::createDocument(apString const& root_name) const
try
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(axsLoadAttempt::new_uri());
  std::shared_ptr<axmElement> const root = document->createElement(root_name);
  if (root == nullptr)
    return nullptr;
  document->appendChild(root);
  return document;
}
catch (std::bad_alloc const&)
{
  return nullptr;
}

std::shared_ptr<axmDocument> axsDocumentFactory::loadDocument(
  apPath const& path, axmLoadOptions const& options, axmParseError& error) const
{
  return axsLoadAttempt::make(&axsLoader::load, path, options, error);
}

std::shared_ptr<axmDocument> axsDocumentFactory::loadDocument(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const
{
  return axsLoadAttempt::make(&axsLoader::load, data, options, error);
}

bool axsDocumentFactory::saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output)
{
  axsDomDocument const* const own = own_document(document);
  return own != nullptr && axsSaver::save(*own, output);
}

bool axsDocumentFactory::saveDocument(std::shared_ptr<axmDocument> document, apPath const& path)
{
  axsDomDocument const* const own = own_document(document);
  return own != nullptr && axsSaver::save(*own, path);
}

apString axsDocumentFactory::obstacle(axmDocument const& document) const
{
  return axsSaving::obstacle(document);
}
