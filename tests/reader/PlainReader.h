#pragma once

#include "PlainCursor.h"

#include <string>
#include <vector>

// A second reader over plain cursors, with nothing remembered from one call to the next but the stack.
class PlainReader
{
public:
  explicit PlainReader(std::string const& given) : document(given), declaration(document, 0) {}

  bool read_file()
  {
    return guarded(false,
      [&]
      {
        name_of_encoding = declaration.encoding();
        ready = !is_utf16(name_of_encoding);
        return ready;
      });
  }

  std::string encoding() const { return name_of_encoding; }

  void up()
  {
    if (!errors.empty())
      return;
    if (stack.empty())
    {
      errors.push_back("Incorrect xml nesting");
      return;
    }
    guarded(0,
      [&]
      {
        if (stack.size() == 1)
        {
          stack.back().skip_all_children();
          stack.pop_back();
        }
        else
        {
          stack.pop_back();
          stack.back().skip_object();
        }
        return 0;
      });
  }

  bool down_to(std::string const& name)
  {
    if (!errors.empty())
      return false;
    if (!ready)
    {
      errors.push_back("No xml file has been read");
      return false;
    }
    return guarded(false,
      [&]
      {
        PlainCursor child(document, 0);
        PlainCursor& parent = stack.empty() ? declaration : stack.back();
        if (!parent.go_to_sub_tag(name, child))
          return false;
        stack.push_back(child);
        return true;
      });
  }

  std::string attribute(std::string const& name, std::string const& default_value)
  {
    if (!inside())
      return default_value;
    return guarded(default_value, [&] { return stack.back().attribute(name, default_value); });
  }

  std::string text_node()
  {
    if (!inside())
      return "";
    return guarded(std::string(), [&] { return stack.back().text_node(); });
  }

  bool has_error_occurred() const { return !errors.empty(); }

  std::string all_errors() const
  {
    std::string all;
    for (std::string const& error : errors)
      all += error;
    return all;
  }

  static std::string explanation(PlainEnd const&)
  {
    return "axmEndException:: Xml reader moved of the end of the file\n";
  }

  static std::string explanation(PlainTag const& error)
  {
    return "axmTagException:: Something wrong with tag " + error.text + "\n";
  }

  static std::string explanation(PlainChar const& error)
  {
    std::string const text = "axmCharException:: Xml file did not contain expected char ";
    int const code = static_cast<signed char>(error.expected);
    if (code < 0 || code >= 58)
      return "\n";
    return text.substr(static_cast<std::size_t>(code)) + "\n";
  }

private:
  static bool is_utf16(std::string const& name)
  {
    std::string const wanted = "utf-16";
    if (name.size() != wanted.size())
      return false;
    for (std::size_t i = 0; i < name.size(); ++i)
    {
      char const c = name[i];
      if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c) != wanted[i])
        return false;
    }
    return true;
  }

  bool inside()
  {
    if (!errors.empty())
      return false;
    if (stack.empty())
      errors.push_back("Incorrect xml nesting");
    return errors.empty();
  }

  template <class Result, class Work>
  Result guarded(Result neutral, Work work)
  {
    try
    {
      return work();
    }
    catch (PlainEnd const& error)
    {
      errors.push_back(explanation(error));
    }
    catch (PlainChar const& error)
    {
      errors.push_back(explanation(error));
    }
    catch (PlainTag const& error)
    {
      errors.push_back(explanation(error));
    }
    return neutral;
  }

  std::string document;
  PlainCursor declaration;
  std::vector<PlainCursor> stack;
  std::vector<std::string> errors;
  std::string name_of_encoding = "Unknown";
  bool ready = false;
};
