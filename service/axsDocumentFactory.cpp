#include "axsDocumentFactory.h"

#include "axsDocument.h"
#include "axsElement.h"
#include "axsHandle.h"
#include "axsSaver.h"
#include "axsXmlName.h"

#include <apStringFormatter.h>

#include <atomic>

namespace
{
// A document that has no file is told from others by a number.
apString new_uri()
{
  static std::atomic<unsigned int> documents{0};
  return apStringFormatter::format(L"axs:document:%u", ++documents);
}

axsDocument* own_document(std::shared_ptr<axmDocument> const& document)
{
  axsNode* const node = document == nullptr ? nullptr : axsNode::of(*document);
  return node == nullptr || !node->is_document() ? nullptr : static_cast<axsDocument*>(node);
}
}

axsDocumentFactory::axsDocumentFactory() = default;
axsDocumentFactory::~axsDocumentFactory() = default;

std::shared_ptr<axmDocument> axsDocumentFactory::createDocument(apString const& root_name) const
{
  std::shared_ptr<axmDocument> document = axsDocument::make(new_uri());
  std::shared_ptr<axmElement> const root = document->createElement(root_name);
  if (root == nullptr)
    return nullptr;
  document->appendChild(root);
  return document;
}

std::shared_ptr<axmDocument> axsDocumentFactory::loadDocument(
  apPath const&, axmLoadOptions const&, axmParseError&) const
{
  return nullptr;
}

std::shared_ptr<axmDocument> axsDocumentFactory::loadDocument(
  apByteArray const&, axmLoadOptions const&, axmParseError&) const
{
  return nullptr;
}

bool axsDocumentFactory::saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output)
{
  axsDocument const* const own = own_document(document);
  return own != nullptr && axsSaver::save(*own, output);
}

bool axsDocumentFactory::saveDocument(std::shared_ptr<axmDocument> document, apPath const& path)
{
  axsDocument const* const own = own_document(document);
  return own != nullptr && axsSaver::save(*own, path);
}
