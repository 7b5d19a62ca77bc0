#pragma once

/// Everything: the interfaces, and what makes them pleasant in C++ (namespace axm).

#include "axmAttributeValue.h"
#include "axmContent.h"
#include "axmEngineAccess.h"
#include "axmLoading.h"
#include "axmNodeKind.h"
#include "axmRanges.h"
#include "axmResult.h"
#include "axmSaving.h"
#include "axmSearching.h"
#include "axmUtf8.h"
#include "axmWalk.h"

#include <axmCommentNode.h>
#include <axmDocument.h>
#include <axmDocumentFactory.h>
#include <axmElement.h>
#include <axmNamedNodeMap.h>
#include <axmNode.h>
#include <axmNodeList.h>
#include <axmProcessingInstruction.h>
#include <axmSimpleXmlFactory.h>
#include <axmTextNode.h>
