#pragma once

/// Reaches a private member of a class: an explicit instantiation may name one. For the member `m` of a type `Member`,
/// with the tag outside of all namespaces, as this is:
///
///     struct Tag { using type = Member; friend type private_member(Tag); };
///     template struct PrivateMember<Tag, &Class::m>;
///     ... (object.*private_member(Tag()))
template <class Tag, typename Tag::type member>
struct PrivateMember
{
  friend typename Tag::type private_member(Tag) { return member; }
};
