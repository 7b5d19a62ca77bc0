#include "Engine.h"

#include <axmCharException.h>
#include <axmDocumentFactory.h>
#include <axmInitialPositionX.h>
#include <axmSimpleXmlFactory.h>
#include <utService.h>

#include <gtest/gtest.h>

#include <stdexcept>

// Three binaries: the library, an engine and this program. What crosses from one to another must keep its type.

TEST(Boundary, a_factory_of_the_engine_is_found_by_its_type)
{
  engine::register_factory();
  utServiceName resolved;
  auto const factory =
    utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("qualified::Boundary")), resolved);
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(resolved.name(), ut_lit("Boundary"));

  axmParseError error;
  EXPECT_EQ(factory->loadDocument(apPath("x"), axmLoadOptions(), error), nullptr);
  EXPECT_EQ(error.message(), APSTRING("path"));
  EXPECT_EQ(factory->loadDocument(apByteArray(), axmLoadOptions(), error), nullptr);
  EXPECT_EQ(error.message(), APSTRING("bytes"));
  apByteArray output;
  EXPECT_TRUE(factory->saveDocument(nullptr, output));
  EXPECT_FALSE(factory->saveDocument(nullptr, apPath("x")));
}

TEST(Boundary, the_library_knows_an_element_of_the_engine)
{
  std::shared_ptr<axmNode> const node = engine::make_element();
  EXPECT_TRUE(node->set_attribute(APSTRING("a"), 5));
  int value = 0;
  EXPECT_TRUE(node->get_attribute(APSTRING("a"), value));
  EXPECT_EQ(value, 5);
}

TEST(Boundary, the_program_knows_an_element_of_the_engine)
{
  std::shared_ptr<axmNode> const node = engine::make_element();
  EXPECT_NE(std::dynamic_pointer_cast<axmElement>(node), nullptr);
  EXPECT_EQ(std::dynamic_pointer_cast<axmDocument>(node), nullptr);
}

TEST(Boundary, exceptions_of_the_library_arrive)
{
  char text[] = "no declaration";
  axmInitialPositionX position(text);
  EXPECT_THROW(position.encoding(), axmCharException);
  try
  {
    position.encoding();
    ADD_FAILURE();
  }
  catch (axmException const& caught)
  {
    EXPECT_NE(dynamic_cast<axmCharException const*>(&caught), nullptr);
  }
  EXPECT_THROW(axmLoadOptions().external_schema(0), std::out_of_range);
}

TEST(Boundary, exceptions_of_the_engine_pass_through_the_library)
{
  std::shared_ptr<axmNode> const node = engine::make_throwing_element();
  int value = 0;
  EXPECT_THROW(node->get_attribute(APSTRING("a"), value), EngineException);
  EXPECT_THROW(node->get_attribute(APSTRING("a"), value), axmException);
}

TEST(Boundary, a_reader_is_deleted_by_the_program)
{
  auto const reader = axmSimpleXmlFactory().create_xml_reader_path(utPtrReleaseToCaller, apPath("not there"));
  ASSERT_NE(reader, nullptr);
  EXPECT_FALSE(reader->read_file());
}
