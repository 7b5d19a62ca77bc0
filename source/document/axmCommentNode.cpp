#include "axmCommentNode.h"

axmCommentNode::axmCommentNode() = default;
axmCommentNode::~axmCommentNode() = default;
