#include "axsDocumentFactory.h"

#include "axsHandle.h"
#include "axsLoader.h"
#include "axsReadError.h"
#include "axsSaver.h"
#include "axsSource.h"

#include <apStringFormatter.h>

#include <atomic>
#include <exception>
#include <memory>
#include <new>

namespace
{
// A document that has no file is told from others by a number.
apString new_uri()
{
  static std::atomic<unsigned int> documents{0};
  return apStringFormatter::format(L"axs:document:%u", ++documents);
}

axsDomDocument* own_document(std::shared_ptr<axmDocument> const& document)
{
  axsNode* const node = document == nullptr ? nullptr : axsHandle::node_of(*document);
  return node == nullptr || !node->is_document() ? nullptr : static_cast<axsDomDocument*>(node);
}

std::shared_ptr<axmDocument> read(axsSource& source, axmLoadOptions const& options)
{
  apString const url = source.url();
  return axsLoader::load(source, options, url.empty() ? new_uri() : url);
}

template <class Open>
std::shared_ptr<axmDocument> load(Open open, axmLoadOptions const& options, axmParseError& error)
try
{
  return read(*open(), options);
}
catch (axsReadError const& failure)
{
  error = failure.record();
  return nullptr;
}
catch (std::bad_alloc const&)
{
  error = axmParseError(APSTRING("Memory ran out"));
  return nullptr;
}
catch (std::exception const& failure)
{
  error = axmParseError(apString(failure.what()));
  return nullptr;
}
}

axsDocumentFactory::axsDocumentFactory() = default;
axsDocumentFactory::~axsDocumentFactory() = default;

std::shared_ptr<axmDocument> axsDocumentFactory::createDocument(apString const& root_name) const
try
{
  std::shared_ptr<axmDocument> document = axsDomDocument::make(new_uri());
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
  return load([&] { return std::make_unique<axsSource>(path); }, options, error);
}

std::shared_ptr<axmDocument> axsDocumentFactory::loadDocument(
  apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const
{
  return load([&] { return std::make_unique<axsSource>(data); }, options, error);
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
