// The library's cursors and reader against the plain ones, on generated documents.

#include "DocumentMaker.h"
#include "MemoryFile.h"
#include "OpenCursor.h"
#include "PlainCursor.h"
#include "PlainReader.h"

#include <axmCharException.h>
#include <axmEndException.h>
#include <axmInitialPositionX.h>
#include <axmSimpleXmlFactory.h>
#include <axmTagException.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{
// The generated documents are shared out to tests that can run side by side. A build that watches every access is slow and
// looks at fewer, and so does the one without vectors, which is to be right and not to be used.
#if defined(AP_WITHOUT_VECTORS)
int const shares = 2;
#else
int const shares = 8;
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
int const documents_per_share = 2000;
#else
int const documents_per_share = 13000;
#endif

std::string const absent = "(absent)";

std::string text(utString const& given)
{
  return std::string(given.c_str(), static_cast<std::size_t>(given.length()));
}

utString ut(std::string const& given)
{
  return utString(given.c_str(), static_cast<int>(given.size()));
}

// What came of an operation: its result, or the kind and the payload of what it threw.
template <class Work>
std::string outcome_of_plain(Work work)
{
  try
  {
    return work();
  }
  catch (PlainEnd const& error)
  {
    return "end " + PlainReader::explanation(error);
  }
  catch (PlainChar const& error)
  {
    return "char " + PlainReader::explanation(error);
  }
  catch (PlainTag const& error)
  {
    return "tag " + PlainReader::explanation(error);
  }
  catch (PlainNeverEnds const&)
  {
    return "never ends";
  }
}

template <class Work>
std::string outcome_of_library(Work work)
{
  try
  {
    return work();
  }
  catch (axmEndException const& error)
  {
    return "end " + text(error.explanation());
  }
  catch (axmCharException const& error)
  {
    return "char " + text(error.explanation());
  }
  catch (axmTagException const& error)
  {
    return "tag " + text(error.explanation());
  }
}

std::string said(bool answer)
{
  return answer ? "true" : "false";
}

// A cursor of the library and a plain one, which go the same way.
class CursorPair
{
public:
  CursorPair(std::string& document, std::size_t start, std::size_t at)
    : buffer(&document[0]),
      ours(buffer + start, buffer + at),
      plain(document, start)
  {
    plain_moves_to(at);
  }

  CursorPair(std::string& document, axmPositionX const& cursor, PlainCursor const& other)
    : buffer(&document[0]),
      ours(cursor),
      plain(other)
  {
  }

  std::size_t at() const { return static_cast<std::size_t>(ours.current() - buffer); }

  // Does one operation with both and compares what came of it and where they stand.
  void step(DocumentMaker& maker, std::unique_ptr<CursorPair>& child, std::string& document)
  {
    std::string expected;
    std::string result;
    char const c = "<>/=\"'- !]a"[maker.below(11)];
    std::string const name = maker.element_name();
    std::string const attribute = maker.attribute_name();
    std::size_t const operation = maker.below(32);
    auto const both = [&](auto plain_work, auto our_work)
    {
      expected = outcome_of_plain(plain_work);
      result = expected == "never ends" ? to_endless_child() : outcome_of_library(our_work);
    };

    switch (operation)
    {
    case 0:
      both([&] { return std::string(1, plain.read_char()); }, [&] { return std::string(1, ours.read_char()); });
      break;
    case 1:
      both([&] { return said(plain.is_string(name)); }, [&] { return said(ours.is_string(ut(name))); });
      break;
    case 2:
      both([&] { return said(plain.is_closing_tag()); }, [&] { return said(ours.is_closing_tag()); });
      break;
    case 3:
      both([&] { return said(plain.is_comment()); }, [&] { return said(ours.is_comment()); });
      break;
    case 4:
      both([&] { return said(plain.is_cdata()); }, [&] { return said(ours.is_cdata()); });
      break;
    case 5:
      both([&] { return said(plain.is_tag()); }, [&] { return said(ours.is_tag()); });
      break;
    case 6:
      both([&] { return said(plain.is_opening_tag()); }, [&] { return said(ours.is_opening_tag()); });
      break;
    case 7:
      both([&] { return said(plain.self_closing_tag()); }, [&] { return said(ours.self_closing_tag()); });
      break;
    case 8:
      both([&] { return said(plain.is_tag_name(name)); }, [&] { return said(ours.is_tag_name(ut(name))); });
      break;
    case 9:
      both([&] { return plain.skip_char(c), ""; }, [&] { return ours.skip_char(c), ""; });
      break;
    case 10:
      both([&] { return plain.skip_whitespace(), ""; }, [&] { return ours.skip_whitespace(), ""; });
      break;
    case 11:
      both([&] { return plain.skip_string(name), ""; }, [&] { return ours.skip_string(ut(name)), ""; });
      break;
    case 12:
      both([&] { return plain.skip_tag(), ""; }, [&] { return ours.skip_tag(), ""; });
      break;
    case 13:
      both([&] { return plain.skip_comment(), ""; }, [&] { return ours.skip_comment(), ""; });
      break;
    case 14:
      both([&] { return plain.read_string_to_char(c); }, [&] { return text(ours.read_string_to_char(c)); });
      break;
    case 15:
      both([&] { return plain.read_tag(); }, [&] { return text(ours.read_tag()); });
      break;
    case 16:
      both([&] { return plain.read_cdata(); }, [&] { return text(ours.read_cdata()); });
      break;
    case 17:
      both([&] { return plain.find_attribute(attribute, absent); },
        [&] { return text(ours.find_attribute(ut(attribute), ut(absent))); });
      break;
    case 18:
    case 19:
      both([&] { return said(plain.find_sub_tag(name)); }, [&] { return said(ours.find_sub_tag(ut(name))); });
      break;
    case 20:
    case 21:
      both([&] { return plain.attribute(attribute, absent); },
        [&] { return text(ours.attribute(ut(attribute), ut(absent))); });
      break;
    case 22:
      both([&] { return plain.end_object(), ""; }, [&] { return ours.end_object(), ""; });
      break;
    case 23:
      both([&] { return plain.initial_tag(); }, [&] { return text(ours.initial_tag()); });
      break;
    case 24:
      both([&] { return plain.object_setup(), ""; }, [&] { return ours.object_setup(), ""; });
      break;
    case 25:
      both([&] { return plain.read_text(); }, [&] { return text(ours.read_text()); });
      break;
    case 26:
      both([&] { return plain.skip_object(), ""; }, [&] { return ours.skip_object(), ""; });
      break;
    case 27:
    case 28:
      both([&] { return plain.text_node(); }, [&] { return text(ours.text_node()); });
      break;
    default:
      go_to_sub_tag(name, child, document, expected, result);
    }
    ASSERT_EQ(result, expected) << "operation " << operation << " with " << c << " " << name << " " << attribute;
    ASSERT_EQ(at(), plain.pos_()) << "operation " << operation << " with " << c << " " << name << " " << attribute;
    ASSERT_EQ(static_cast<std::size_t>(ours.start() - buffer), plain.start_()) << "operation " << operation;
    ASSERT_EQ(ours.is_char(plain.now()), true);
    ASSERT_EQ(ours.is_whitespace(), plain.is_whitespace());
  }

private:
  // What end_object() finds again and again.
  std::string to_endless_child() { return ours.find_sub_tag(ut_lit("Invalid")) ? "never ends" : "ends"; }

  void plain_moves_to(std::size_t at)
  {
    while (plain.pos_() < at)
      plain.read_char();
  }

  void go_to_sub_tag(std::string const& name, std::unique_ptr<CursorPair>& child, std::string& document,
    std::string& expected, std::string& result)
  {
    PlainCursor plain_child(document, 0);
    std::unique_ptr<axmPositionX> our_child;
    expected = outcome_of_plain([&] { return said(plain.go_to_sub_tag(name, plain_child)); });
    result = outcome_of_library(
      [&]
      {
        our_child.reset(ours.go_to_sub_tag(utPtrReleaseToCaller, ut(name)));
        return said(our_child != nullptr);
      });
    if (our_child == nullptr || expected != "true")
      return;
    child = std::make_unique<CursorPair>(document, *our_child, plain_child);
    ASSERT_EQ(child->at(), plain_child.pos_());
    ASSERT_EQ(static_cast<std::size_t>(child->ours.start() - buffer), plain_child.start_());
  }

  char* buffer;
  OpenCursor ours;
  PlainCursor plain;
};

class PlainModel : public testing::TestWithParam<int>
{
protected:
  DocumentMaker maker{static_cast<std::uint32_t>(GetParam())};
};

// The position of the first NUL, after which nothing belongs to the document.
std::size_t length_of(std::string const& document)
{
  return std::string(document.c_str()).size();
}

void walk_cursors(DocumentMaker& maker, std::string& document)
{
  std::size_t const length = length_of(document);
  std::size_t const start = maker.one_in(2) || length == 0 ? 0 : maker.below(length);
  std::size_t const at = maker.one_in(2) || start == length ? start : start + maker.below(length - start);
  auto pair = std::make_unique<CursorPair>(document, start, at);
  for (int i = 0; i < 12; ++i)
  {
    std::unique_ptr<CursorPair> child;
    pair->step(maker, child, document);
    if (testing::Test::HasFatalFailure())
      return;
    if (child != nullptr && maker.one_in(2))
      pair = std::move(child);
  }
}

class OpenDeclaration : public axmInitialPositionX
{
public:
  using axmInitialPositionX::axmInitialPositionX;
  using axmInitialPositionX::current;
};

void walk_declaration(DocumentMaker& maker, std::string& document)
{
  OpenDeclaration ours(&document[0]);
  PlainCursor plain(document, 0);
  for (int i = 0; i < 6; ++i)
  {
    std::string expected;
    std::string result;
    switch (maker.below(5))
    {
    case 0:
      expected = outcome_of_plain([&] { return plain.version(); });
      result = outcome_of_library([&] { return text(ours.version()); });
      break;
    case 1:
      expected = outcome_of_plain([&] { return plain.encoding(); });
      result = outcome_of_library([&] { return text(ours.encoding()); });
      break;
    case 2:
      expected = outcome_of_plain([&] { return plain.standalone(); });
      result = outcome_of_library([&] { return text(ours.standalone()); });
      break;
    case 3:
      expected = outcome_of_plain([&] { return std::to_string(plain.end_point()); });
      result = outcome_of_library([&] { return std::to_string(ours.end_point() - &document[0]); });
      break;
    default:
      expected = outcome_of_plain([&] { return said(plain.find_sub_tag("a")); });
      result = outcome_of_library(
        [&]
        {
          // Without a child cursor the two would differ in what object_setup() throws.
          OpenCursor cursor(ours);
          bool const found = cursor.find_sub_tag(ut_lit("a"));
          static_cast<axmPositionX&>(ours) = cursor;
          return said(found);
        });
      if (result != expected || (result != "true" && result != "false"))
      {
        ASSERT_EQ(result, expected);
        return; // only the copy has moved
      }
    }
    ASSERT_EQ(result, expected);
    ASSERT_EQ(static_cast<std::size_t>(ours.current() - &document[0]), plain.pos_());
  }
}

std::unique_ptr<axmAbstractXmlReader> reader_of(std::string const& document)
{
  return axmSimpleXmlFactory().create_xml_reader_file(utPtrReleaseToCaller, apITarnFilecoPrf(new MemoryFile(document)));
}

std::string errors_of(axmAbstractXmlReader const& reader)
{
  std::ostringstream out;
  reader.dump_error(out);
  return out.str();
}

void walk_reader(DocumentMaker& maker, std::string const& document, bool read)
{
  auto const ours = reader_of(document);
  PlainReader plain(document);
  if (read)
  {
    ASSERT_EQ(ours->read_file(), plain.read_file());
  }
  ASSERT_EQ(text(ours->encoding()), plain.encoding());

  int after_error = 0;
  for (int i = 0; i < 40 && after_error < 4; ++i)
  {
    std::string const name = maker.element_name();
    std::string const attribute = maker.attribute_name();
    switch (maker.below(9))
    {
    case 8:
      // The file again, which has not changed.
      ASSERT_EQ(ours->read_file(), plain.read_file());
      ASSERT_EQ(text(ours->encoding()), plain.encoding());
      break;
    case 0:
    case 1:
      ASSERT_EQ(text(ours->attribute(ut(attribute), ut(absent))), plain.attribute(attribute, absent)) << attribute;
      break;
    case 2:
      ASSERT_EQ(text(ours->text_node()), plain.text_node());
      break;
    case 3:
    case 4:
      ours->up();
      plain.up();
      break;
    default:
      ASSERT_EQ(ours->down_to(ut(name)), plain.down_to(name)) << name;
    }
    ASSERT_EQ(errors_of(*ours), plain.all_errors());
    ASSERT_EQ(ours->has_error_occurred(), plain.has_error_occurred());
    after_error += plain.has_error_occurred() ? 1 : 0;
  }
}
}

TEST_P(PlainModel, the_library_answers_as_the_plain_model_does)
{
  for (int i = 0; i < documents_per_share; ++i)
  {
    std::string document = maker.next();
    SCOPED_TRACE("document " + std::to_string(i) + ":\n" + document);
    walk_cursors(maker, document);
    walk_declaration(maker, document);
    walk_reader(maker, document, true);
    walk_reader(maker, document, !maker.one_in(50));
    if (HasFatalFailure())
      return;
  }
}

// Long walks over documents of some length, in which what the library remembers is of use.
TEST_P(PlainModel, the_library_answers_as_the_plain_model_does_on_long_walks)
{
  for (int i = 0; i < documents_per_share / 130; ++i)
  {
    std::string const document = maker.next_wide();
    SCOPED_TRACE("document " + std::to_string(i) + ":\n" + document);
    auto const ours = reader_of(document);
    PlainReader plain(document);
    ASSERT_EQ(ours->read_file(), plain.read_file());
    int depth = 0;
    for (int step = 0; step < 300 && !plain.has_error_occurred(); ++step)
    {
      std::string const attribute = maker.wide_attribute();
      std::string const name = depth == 0 ? "root" : maker.wide_name();
      std::size_t const operation = maker.below(12);
      if (operation < 5)
      {
        bool const found = plain.down_to(name);
        ASSERT_EQ(ours->down_to(ut(name)), found) << name;
        depth += found ? 1 : 0;
      }
      else if (operation < 8 && depth > 1)
      {
        ours->up();
        plain.up();
        --depth;
      }
      else if (operation < 11 && depth > 0)
      {
        ASSERT_EQ(text(ours->attribute(ut(attribute), ut(absent))), plain.attribute(attribute, absent)) << attribute;
      }
      else if (depth > 0)
      {
        ASSERT_EQ(text(ours->text_node()), plain.text_node());
      }
      ASSERT_EQ(errors_of(*ours), plain.all_errors());
    }
    ours->up();
    plain.up();
    ASSERT_EQ(errors_of(*ours), plain.all_errors());
  }
}

INSTANTIATE_TEST_SUITE_P(shares, PlainModel, testing::Range(0, shares));
