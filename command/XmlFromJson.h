#pragma once

#include <string>
#include <string_view>

/// Makes the document again of which axsJsonText made JSON.
class XmlFromJson
{
public:
  /// Appends the document that `json` stands for to `xml`. Why not, with the place, where it stands for none, or not for all
  /// that is in it: read back, the document has to give the same JSON. Empty if all is well. Linear in `json`.
  static std::string convert(std::string_view json, std::string& xml);
};
