#pragma once

#include "axmDocument.h"
#include "axmExport.h"
#include "axmLoadOptions.h"
#include "axmOverloads.h"
#include "axmParseError.h"

#include <apByteArray.h>
#include <apPath.h>
#include <apString.h>
#include <utService.h>

#include <memory>

/// The contract of an engine: it creates, loads and saves documents.
///
/// Interface. An engine registers its factory under "XMLService" with utService; programs find it there and never name
/// the class that implements it:
///
///     utServiceName resolved;
///     auto factory = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
///
/// Ownership: documents are handed out in a `std::shared_ptr`; an empty one means that there is none. Failures are
/// results, never exceptions, and leave the factory usable.
/// Threads: whether one factory may be used from several threads is the engine's business.
/// The order of the virtual operations is a promise to engines built separately.
class AXM_API axmDocumentFactory : public utService
{
public:
  axmDocumentFactory();
  ~axmDocumentFactory() override = 0;

  /// A new document whose root element has the name `root_name`. Empty when that is not a name (XML 1.0, 2.3)
  /// or memory runs out.
  virtual std::shared_ptr<axmDocument> createDocument(apString const& root_name) const = 0;

  /// Loads the file at `path`, or the document that `data` holds: UTF-8, or what its declaration says (XML 1.0, 4.3.3).
  ///
  /// On success the document, with `error` untouched; on failure empty, with `error` saying what went wrong and, as far
  /// as known, in which input, line and column. A file that is missing or cannot be read, data that is empty or is no
  /// document, a document that breaks a schema, and a schema that cannot be used are all failures.
  ///
  /// Text that is white space only is dropped, except where it is exactly one space; an engine may keep it where the
  /// author asks for that (xml:space, XML 1.0, 2.10). Other text is kept as it is. A schema sees the document before
  /// anything is dropped.
  AXM_OVERLOADS_2(virtual std::shared_ptr<axmDocument> loadDocument(
                    apPath const& path, axmLoadOptions const& options, axmParseError& error) const = 0,
    virtual std::shared_ptr<axmDocument> loadDocument(
      apByteArray const& data, axmLoadOptions const& options, axmParseError& error) const = 0);

  /// Writes the whole document in UTF-8 to `output`, in the place of what it held, or to the file at `path`. True on
  /// success; false when it cannot be written, with what was there before unchanged. Loaded again, it is the document that
  /// was saved, texts beside each other joined and white space dropped as for any load. What could not be loaded so is not
  /// saved: a document without a root, characters that XML does not have (XML 1.0, 2.2), a comment that holds two hyphens
  /// or ends with one (2.5).
  AXM_OVERLOADS_2(virtual bool saveDocument(std::shared_ptr<axmDocument> document, apByteArray& output) = 0,
    virtual bool saveDocument(std::shared_ptr<axmDocument> document, apPath const& path) = 0);
};

extern template AXM_API_INSTANCE std::shared_ptr<axmDocumentFactory> utService::locate_service<axmDocumentFactory>(
  utServiceName const& name, utServiceName& resolved);
