#include <axmDocumentFactory.h>

#include "../slots.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

namespace
{
// A factory that makes nothing.
class TestFactory : public axmDocumentFactory
{
public:
  ~TestFactory() override = default;

  std::shared_ptr<axmDocument> createDocument(apString const&) const override { return nullptr; }
  std::shared_ptr<axmDocument> loadDocument(apPath const&, axmLoadOptions const&, axmParseError& error) const override
  {
    error = axmParseError(L"from a file");
    return nullptr;
  }
  std::shared_ptr<axmDocument> loadDocument(
    apByteArray const&, axmLoadOptions const&, axmParseError& error) const override
  {
    error = axmParseError(L"from bytes");
    return nullptr;
  }
  bool saveDocument(std::shared_ptr<axmDocument>, apByteArray&) override { return true; }
  bool saveDocument(std::shared_ptr<axmDocument>, apPath const&) override { return false; }
};

class OtherService : public utService
{
};

utServiceName name(char const* text)
{
  return utServiceName(utString(text));
}

struct axmDocumentFactoryTest : testing::Test
{
  ~axmDocumentFactoryTest() override
  {
    for (char const* const used : {"XMLService", "b::XMLService", "a::b::XMLService"})
      utService::get_instance()->register_service(name(used), nullptr);
  }

  utServiceName resolved;
  std::shared_ptr<TestFactory> const factory = std::make_shared<TestFactory>();
};

// Opens the protected operation.
class Opened : public TestFactory
{
public:
  using utService::do_locate_service;
};
}

TEST_F(axmDocumentFactoryTest, registered_factory_is_located_as_XMLService)
{
  utService::get_instance()->register_service(utServiceName(utString("XMLService")), factory);
  std::shared_ptr<axmDocumentFactory> const located =
    utService::locate_service<axmDocumentFactory>(utServiceName(utString("XMLService")), resolved);
  EXPECT_EQ(located, factory);
  EXPECT_EQ(factory.use_count(), 3) << "held here, by the registry and by whoever located it";
  EXPECT_EQ(resolved, name("XMLService"));
}

TEST_F(axmDocumentFactoryTest, qualified_name_falls_back_past_a_service_that_is_no_factory)
{
  utService::get_instance()->register_service(name("a::b::XMLService"), std::make_shared<OtherService>());
  utService::get_instance()->register_service(name("XMLService"), factory);
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(name("a::b::XMLService"), resolved), factory);
  EXPECT_EQ(resolved, name("XMLService"));
}

TEST_F(axmDocumentFactoryTest, nothing_is_located_where_nothing_or_no_factory_is_registered)
{
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(name("XMLService"), resolved), nullptr);
  EXPECT_TRUE(resolved.invalid());
  utService::get_instance()->register_service(name("XMLService"), std::make_shared<OtherService>());
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(name("XMLService"), resolved), nullptr);
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(name("a::XMLService"), resolved), nullptr);
  EXPECT_EQ(utService::locate_service<axmDocumentFactory>(utServiceName(), resolved), nullptr);
}

TEST_F(axmDocumentFactoryTest, cast_of_a_service_shares_the_ownership_or_is_empty)
{
  std::shared_ptr<utService> const service = factory;
  std::shared_ptr<axmDocumentFactory> const cast = std::dynamic_pointer_cast<axmDocumentFactory, utService>(service);
  EXPECT_EQ(cast, factory);
  EXPECT_EQ(factory.use_count(), 3);
  std::shared_ptr<utService> const other = std::make_shared<OtherService>();
  EXPECT_EQ((std::dynamic_pointer_cast<axmDocumentFactory, utService>(other)), nullptr);
  EXPECT_EQ(other.use_count(), 1);
}

TEST_F(axmDocumentFactoryTest, overloads_are_told_apart_by_their_input)
{
  axmDocumentFactory& contract = *factory;
  axmParseError error;
  contract.loadDocument(apPath(L"path"), axmLoadOptions(), error);
  EXPECT_EQ(error.message().view(), L"from a file");
  contract.loadDocument(apByteArray(), axmLoadOptions(), error);
  EXPECT_EQ(error.message().view(), L"from bytes");
  apByteArray output;
  EXPECT_TRUE(contract.saveDocument(nullptr, output));
  EXPECT_FALSE(contract.saveDocument(nullptr, apPath(L"path")));
}

TEST_F(axmDocumentFactoryTest, interface_is_abstract)
{
  EXPECT_TRUE(std::is_abstract_v<axmDocumentFactory>);
  EXPECT_TRUE(std::has_virtual_destructor_v<axmDocumentFactory>);
}

TEST(slots, axmDocumentFactory)
{
  using Class = axmDocumentFactory;
  using Document = std::shared_ptr<axmDocument>;
  struct Longer : axmDocumentFactory
  {
    virtual void next() = 0;
  };
  // The destructor, the second operation of a service, takes two slots.
  EXPECT_EQ(slot_of(&Class::register_service), 0);
  EXPECT_EQ(slot_of(&Opened::do_locate_service), 3);
  EXPECT_EQ(slot_of(&Class::createDocument), 4);
  EXPECT_EQ(
    (slot_of<Document (Class::*)(apPath const&, axmLoadOptions const&, axmParseError&) const>(&Class::loadDocument)),
    5);
  EXPECT_EQ((slot_of<Document (Class::*)(apByteArray const&, axmLoadOptions const&, axmParseError&) const>(
              &Class::loadDocument)),
    6);
  EXPECT_EQ((slot_of<bool (Class::*)(Document, apByteArray&)>(&Class::saveDocument)), 7);
  EXPECT_EQ((slot_of<bool (Class::*)(Document, apPath const&)>(&Class::saveDocument)), 8);
  EXPECT_EQ(slot_of(&Longer::next), 9);
}
