#include "Engine.h"

#include <axsCompiledXPath.h>
#include <axsSharing.h>

#include <atomic>
#include <thread>
#include <vector>

TEST(axsThreads, one_factory_serves_many_threads_at_once)
{
  TestFile const schema("engine_threads.xsd",
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:t'>"
    "<xs:element name='r'><xs:complexType><xs:sequence><xs:element name='n' type='xs:int' maxOccurs='unbounded'/>"
    "</xs:sequence></xs:complexType></xs:element></xs:schema>");
  auto const factory = engine();
  axmLoadOptions options(axmValidateWithSchemas);
  options.add_external_schema(APSTRING("urn:t"), schema.path());

  std::atomic<int> wrong{0};
  auto const work = [&](int thread)
  {
    for (int i = 0; i < 20; ++i)
    {
      std::string text = "<t:r xmlns:t='urn:t'>";
      for (int j = 0; j < 50; ++j)
        text += "<n>" + std::to_string(thread * 1000 + j) + "</n>";
      axmParseError error;
      auto const good = factory->loadDocument(bytes(text + "</t:r>"), options, error);
      if (good == nullptr || !error.invalid() || good->getDocumentElement()->getChildNodes()->length() != 50)
        ++wrong;
      if (factory->loadDocument(bytes(text + "<n>x</n></t:r>"), options, error) != nullptr || error.invalid())
        ++wrong;
      auto const made = factory->createDocument(APSTRING("r"));
      made->getDocumentElement()->set_attribute(APSTRING("i"), i);
      apByteArray output;
      if (!factory->saveDocument(made, output) || output.empty())
        ++wrong;
    }
  };
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread)
    threads.emplace_back(work, thread);
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(wrong, 0);
}

TEST(axsThreads, many_evaluate_one_compiled_expression)
{
  std::shared_ptr<axmDocument> shared = load("<books><book year='1990'/><book year='2010'/></books>");
  ASSERT_TRUE(axsSharing::share(shared));
  axsCompiledXPath const later("count(//book[@year > $year])", {}, {{"year", 0}});
  std::atomic<int> right{0};
  auto const evaluate = [&](int year, double expected)
  {
    std::shared_ptr<axmDocument> const own = load("<books><book year='2000'/></books>");
    for (int round = 0; round < 100; ++round)
    {
      axsXPath::Value found;
      axsXPathError error;
      if (later.evaluate(*shared, {{"year", year}}, found, error) && found.number == expected &&
          later.evaluate(*own, found, error) && found.number == 1)
        ++right;
    }
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back(evaluate, i % 2 == 0 ? 1980 : 2000, i % 2 == 0 ? 2 : 1);
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(right, 400);
}
