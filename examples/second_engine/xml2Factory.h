#pragma once

#include <axmDocumentFactory.h>

// An engine over the tree of libxml2, to show that one can be written apart: as little code as it takes. It does not
// validate, knows no entity expansion limit, and resolves no external entities.
class xml2Factory : public axmDocumentFactory
{
public:
  xml2Factory();
  ~xml2Factory() override;

  std::shared_ptr<axmDocument> createDocument(apString const& root_name) const override;
  std::shared_ptr<axmDocument> loadDocument(
    apPath const& path, axmLoadOptions const& options, axmParseError& error) const override;
  std::shared_ptr<axmDocument> loadDocument(
    apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const override;
  bool saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output) override;
  bool saveDocument(std::shared_ptr<axmDocument> document, apPath const& path) override;
};
