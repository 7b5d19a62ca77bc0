#pragma once

#include <axmDocumentFactory.h>
#include <axmSaveObstacles.h>

/// The factory of the default engine. It has no state: its operations may be called from many threads at once.
class axsDocumentFactory final : public axmDocumentFactory, public axmSaveObstacles
{
public:
  axsDocumentFactory();
  ~axsDocumentFactory() override;

  std::shared_ptr<axmDocument> createDocument(apString const& root_name) const override;
  std::shared_ptr<axmDocument> loadDocument(
    apPath const& path, axmLoadOptions const& options, axmParseError& error) const override;
  std::shared_ptr<axmDocument> loadDocument(
    apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const override;
  bool saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output) override;
  bool saveDocument(std::shared_ptr<axmDocument> document, apPath const& path) override;
  apString obstacle(axmDocument const& document) const override;
};
