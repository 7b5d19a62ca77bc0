#include "Engine.h"

#include <axmDocumentFactory.h>
#include <axmEngine.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <utService.h>

#include <map>

namespace
{
using Attributes = std::map<apString, apString>;

class Element : public axmElement
{
public:
  explicit Element(bool throwing = false) : throws(throwing) {}

  apString getNodeName() const override { return APSTRING("element"); }
  apString getNodeValue() const override { return own_value; }
  std::shared_ptr<axmNode> getParentNode() override { return nullptr; }
  std::shared_ptr<axmNodeList> getChildNodes() override { return nullptr; }
  std::shared_ptr<axmNode> getFirstChild() override { return nullptr; }
  std::shared_ptr<axmNode> getLastChild() override { return nullptr; }
  std::shared_ptr<axmNode> getPreviousSibling() override { return nullptr; }
  std::shared_ptr<axmNode> getNextSibling() override { return nullptr; }
  std::shared_ptr<axmDocument> getOwnerDocument() override { return nullptr; }
  std::shared_ptr<axmNode> insertBefore(std::shared_ptr<axmNode>, std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> replaceChild(std::shared_ptr<axmNode>, std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> removeChild(std::shared_ptr<axmNode>) override { return nullptr; }
  std::shared_ptr<axmNode> appendChild(std::shared_ptr<axmNode>) override { return nullptr; }
  bool hasChildNodes() const override { return false; }
  void reserved_node_15() override {}
  bool hasAttributes() const override { return !attributes.empty(); }
  std::shared_ptr<axmNamedNodeMap> getAttributes() override;
  bool operator==(axmNode const& other) const override { return this == &other; }
  apString get_text() const override { return {}; }
  void set_text(apString const&) override {}
  apString get_xml() const override { return {}; }

  void reserved_element_0() override {}
  apString getAttribute(apString const& name) const override { return attributes.at(name); }
  void setAttribute(apString const& name, apString const& value) override { attributes[name] = value; }
  void removeAttribute(apString const& name) override { attributes.erase(name); }
  bool hasAttribute(apString const& name) const override { return attributes.count(name) != 0; }
  std::shared_ptr<axmNodeList> selectNodes(apString const&) override { return nullptr; }
  std::shared_ptr<axmNode> selectSingleNode(apString const&) override { return nullptr; }
  void reserved_element_7() override {}
  void reserved_element_8() override {}
  void reserved_element_9() override {}
  void reserved_element_10() override {}
  void reserved_element_11() override {}

  apString own_value;

private:
  bool throws;
  Attributes attributes;
};

class Map : public axmNamedNodeMap
{
public:
  explicit Map(Attributes const& shown) : attributes(shown) {}

  int getLength() override { return static_cast<int>(attributes.size()); }
  std::shared_ptr<axmNode> item(int) override { return nullptr; }
  std::shared_ptr<axmNode> getNamedItem(apString const& name) override
  {
    auto const found = attributes.find(name);
    if (found == attributes.end())
      return nullptr;
    auto const attribute = std::make_shared<Element>();
    attribute->own_value = found->second;
    return attribute;
  }
  std::shared_ptr<axmNode> removeNamedItem(apString const&) override { return nullptr; }
  std::shared_ptr<axmNode> setNamedItem(std::shared_ptr<axmNode>) override { return nullptr; }

private:
  Attributes const attributes;
};

std::shared_ptr<axmNamedNodeMap> Element::getAttributes()
{
  if (throws)
    throw EngineException();
  return std::make_shared<Map>(attributes);
}

class Factory : public axmDocumentFactory
{
public:
  ~Factory() override = default;
  std::shared_ptr<axmDocument> createDocument(apString const&) const override { return nullptr; }
  std::shared_ptr<axmDocument> loadDocument(apPath const&, axmLoadOptions const&, axmParseError& error) const override
  {
    error = axmParseError(APSTRING("path"));
    return nullptr;
  }
  std::shared_ptr<axmDocument> loadDocument(
    apByteArray const&, axmLoadOptions const&, axmParseError& error) const override
  {
    error = axmParseError(APSTRING("bytes"));
    return nullptr;
  }
  bool saveDocument(std::shared_ptr<axmDocument>, apByteArray&) override { return true; }
  bool saveDocument(std::shared_ptr<axmDocument>, apPath const&) override { return false; }
};
}

EngineException::EngineException() = default;
EngineException::~EngineException() = default;

utString EngineException::explanation() const
{
  return ut_lit("thrown by the engine");
}

void engine::register_factory()
{
  utService::get_instance()->register_service(utServiceName(ut_lit("Boundary")), std::make_shared<Factory>());
}

std::shared_ptr<axmElement> engine::make_element()
{
  return std::make_shared<Element>();
}

std::shared_ptr<axmElement> engine::make_throwing_element()
{
  return std::make_shared<Element>(true);
}

extern "C" void axm_register_engine()
{
  utService::get_instance()->register_service(utServiceName(ut_lit("XMLService")), std::make_shared<Factory>());
}
