#include "axmDocument.h"

axmDocument::axmDocument() = default;
axmDocument::~axmDocument() = default;
