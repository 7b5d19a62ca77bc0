#pragma once

/// Everything: the interfaces, and what makes them pleasant in C++ (namespace axm).
///
///     axs_register();
///     if (auto const document = axm::load_file("books.xml"))
///       for (auto const& book : axm::elements((*document)->getDocumentElement(), "book"))
///         std::cout << axm::attribute<int>(book, "year").value_or(0) << ' ' << axm::text(book) << '\n';
///     else
///       std::cerr << document.error() << '\n';

// load_file, load_string, load_bytes, load_stream, create; save_file, save_stream, to_string; engine, no_engine. What they
// return is a result: a value, or an error with message, file, line and column.
#include "axmEngineAccess.h"
#include "axmLoading.h"
#include "axmResult.h"
#include "axmSaving.h"

// children, elements, attributes, items: loops; text, child, child_text, append, detach.
#include "axmContent.h"
#include "axmRanges.h"

// attribute<T>, set_attribute, value_of<T>; select, select<T>, select_one.
#include "axmAttributeValue.h"
#include "axmSearching.h"

// kind, is_element, as_element; utf8, wide, narrow, path.
#include "axmNodeKind.h"
#include "axmUtf8.h"

// read_root, walk: the streaming readers.
#include "axmSimpleXmlFactory.h"
#include "axmWalk.h"

// The interfaces.
#include "axmCommentNode.h"
#include "axmDocument.h"
#include "axmDocumentFactory.h"
#include "axmElement.h"
#include "axmNamedNodeMap.h"
#include "axmNode.h"
#include "axmNodeList.h"
#include "axmProcessingInstruction.h"
#include "axmTextNode.h"
