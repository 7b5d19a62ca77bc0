#include "axmElement.h"

axmElement::axmElement() = default;
axmElement::~axmElement() = default;
