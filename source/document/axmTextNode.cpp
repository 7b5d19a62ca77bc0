#include "axmTextNode.h"

axmTextNode::axmTextNode() = default;
axmTextNode::~axmTextNode() = default;
