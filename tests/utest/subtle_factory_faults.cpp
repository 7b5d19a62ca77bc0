#include "Faults.h"

std::vector<Fault> const& subtle_factory_faults()
{
  static std::vector<Fault> const faults = {
    {"saveDocument", "a text is saved without its blanks at the ends",
      [](Hooks& h)
      {
        h.save_bytes = [](Factory const& factory, Document const& document, apByteArray& output)
        {
          bool const saved = factory->saveDocument(document, output);
          apString const text =
            replaced(apString::from_utf8({output.data(), output.size()}), APSTRING("> x "), APSTRING(">x"));
          utString const bytes = text.to_utf8();
          if (saved)
            output = apByteArray(bytes.c_str(), static_cast<std::size_t>(bytes.length()));
          return saved;
        };
      }},
  };
  return faults;
}
