#include "../slots.h"
#include "MemoryFile.h"

#include <apPath.h>
#include <axmSimpleXmlFactory.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <type_traits>

namespace
{
// A file of the file system that goes when it is no longer needed.
class TemporaryFile
{
public:
  TemporaryFile(char const* name, std::string const& bytes) : path(name)
  {
    std::FILE* const stream = path.file_open(apPath::write_mode());
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
    std::fclose(stream);
  }
  TemporaryFile(TemporaryFile const&) = delete;
  TemporaryFile& operator=(TemporaryFile const&) = delete;
  ~TemporaryFile() { path.delete_file(); }

  apPath path;
};

// Sees what the path operation hands to the file operation.
class WatchingFactory : public axmSimpleXmlFactory
{
public:
  std::unique_ptr<axmAbstractXmlReader> create_xml_reader_file(
    utPtrRelease given, apITarnFilecoPrf const& file) const override
  {
    release = given;
    has_file = file.get() != nullptr;
    return nullptr;
  }

  mutable int release = -1;
  mutable bool has_file = false;
};

class WatchedFile : public MemoryFile
{
public:
  explicit WatchedFile(bool& is_gone) : MemoryFile("<?xml version='1.0'?><r>x</r>\n"), gone(is_gone) {}
  ~WatchedFile() override { gone = true; }

private:
  bool& gone;
};
}

TEST(axmIXmlFileFactory, creation_has_the_first_slot)
{
  EXPECT_EQ(slot_of(&axmIXmlFileFactory::create_xml_reader_file), 0);
  EXPECT_TRUE(std::is_abstract_v<axmIXmlFileFactory>);
  EXPECT_TRUE(std::has_virtual_destructor_v<axmIXmlFileFactory>);
}

TEST(axmIXmlPathFactory, creation_has_the_first_slot)
{
  EXPECT_EQ(slot_of(&axmIXmlPathFactory::create_xml_reader_path), 0);
  EXPECT_TRUE(std::is_abstract_v<axmIXmlPathFactory>);
  EXPECT_TRUE(std::has_virtual_destructor_v<axmIXmlPathFactory>);
}

TEST(axmSimpleXmlFactory, is_a_path_factory_first_and_a_file_factory_second)
{
  axmSimpleXmlFactory factory;
  auto const* const whole = reinterpret_cast<char const*>(&factory);
  EXPECT_EQ(reinterpret_cast<char const*>(static_cast<axmIXmlPathFactory*>(&factory)), whole);
  EXPECT_EQ(reinterpret_cast<char const*>(static_cast<axmIXmlFileFactory*>(&factory)), whole + sizeof(void*));
  EXPECT_EQ(sizeof(axmSimpleXmlFactory), 2 * sizeof(void*));
}

TEST(axmSimpleXmlFactory, makes_a_reader_for_a_path)
{
  TemporaryFile const file("axmSimpleXmlFactory_path.xml", "<?xml version='1.0'?><r>x</r>\n");
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, file.path);
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(reader->down_to(ut_lit("r")));
  EXPECT_STREQ(reader->text_node().c_str(), "x");
}

TEST(axmSimpleXmlFactory, makes_a_reader_for_a_path_beyond_ascii)
{
  TemporaryFile const file(
    "axmSimpleXmlFactory_\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80.xml", "<?xml version='1.0'?><r>x</r>\n");
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, file.path);
  EXPECT_TRUE(reader->read_file());
}

TEST(axmSimpleXmlFactory, reads_bytes_unchanged)
{
  TemporaryFile const file("axmSimpleXmlFactory_bytes.xml", "<?xml version='1.0'?><r>a\r\nb\x1A</r>\n");
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, file.path);
  ASSERT_TRUE(reader->read_file());
  ASSERT_TRUE(reader->down_to(ut_lit("r")));
  EXPECT_STREQ(reader->text_node().c_str(), "a\r\nb\x1A");
}

TEST(axmSimpleXmlFactory, makes_a_reader_for_a_path_that_is_not_there)
{
  auto const reader =
    axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath("axmSimpleXmlFactory_missing.xml"));
  ASSERT_NE(reader, nullptr);
  EXPECT_FALSE(reader->read_file());
  EXPECT_FALSE(reader->has_error_occurred());
}

TEST(axmSimpleXmlFactory, goes_through_its_own_file_operation_with_release_mode_3)
{
  WatchingFactory const factory;
  factory.create_xml_reader_path(static_cast<utPtrRelease>(0), apPath("x"));
  EXPECT_EQ(factory.release, 3);
  EXPECT_TRUE(factory.has_file);
}

TEST(axmSimpleXmlFactory, reader_shares_the_file_it_is_made_for)
{
  bool gone = false;
  apITarnFilecoPrf owner(new WatchedFile(gone));
  auto reader = axmSimpleXmlFactory().create_xml_reader_file(static_cast<utPtrRelease>(0), owner);
  owner = apITarnFilecoPrf();
  EXPECT_FALSE(gone);
  EXPECT_TRUE(reader->read_file());
  EXPECT_TRUE(reader->down_to(ut_lit("r")));
  reader.reset();
  EXPECT_TRUE(gone);
}

#if defined(_WIN32)
TEST(axmSimpleXmlFactory, reader_keeps_the_file_open)
{
  // A file that is open cannot be deleted there.
  TemporaryFile const file("axmSimpleXmlFactory_open.xml", "<?xml version='1.0'?><r>x</r>\n");
  auto reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, file.path);
  EXPECT_FALSE(file.path.delete_file());
  reader.reset();
  EXPECT_TRUE(file.path.delete_file());
}
#else
TEST(axmSimpleXmlFactory, reader_keeps_the_file_open)
{
  // A file that is open can be read when its name is gone.
  TemporaryFile const file("axmSimpleXmlFactory_open.xml", "<?xml version='1.0'?><r>x</r>\n");
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, file.path);
  EXPECT_TRUE(file.path.delete_file());
  EXPECT_TRUE(reader->read_file());
  EXPECT_TRUE(reader->read_file());
}
#endif
