#pragma once

struct axsElementDecl;

/// Whether `member`, which is affiliated to `head` directly or by way of others, may stand in its place: whether nothing
/// blocks it (Part 1, 3.3.6 cos-equiv-derived-ok-rec).
namespace axsSubstitution
{
bool is_allowed(axsElementDecl const& member, axsElementDecl const& head) noexcept;
}
