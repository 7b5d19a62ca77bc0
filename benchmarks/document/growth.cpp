// How the time of the document operations grows: each of them done n, 2n and 4n times on as many nodes, and the exponent
// of the growth. 1 is linear, 2 quadratic; a logarithm shows as a little more than 1.
//   growth_benchmark [N [NAME]]     N of 20,000 without it; of the operations whose names have NAME in them

#include <axmCommentNode.h>
#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axmTextNode.h>
#include <axsRegister.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace
{
using Node = std::shared_ptr<axmNode>;

std::shared_ptr<axmDocumentFactory> factory()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

apString numbered(char const* begin, int number)
{
  return apString((begin + std::to_string(number)).c_str());
}

// A document, and what is held of it meanwhile.
struct Subject
{
  std::shared_ptr<axmDocument> document = factory()->createDocument(APSTRING("r"));
  std::shared_ptr<axmElement> root = document->getDocumentElement();
  std::vector<std::shared_ptr<axmNodeList>> lists;
  std::shared_ptr<axmNodeList> list;
  std::shared_ptr<axmNamedNodeMap> map;
  Node at;

  Node append() { return root->appendChild(document->createElement(APSTRING("e"))); }

  void append(int count)
  {
    for (int i = 0; i < count; ++i)
      append();
  }

  void chain(int count)
  {
    at = root;
    for (int i = 0; i < count; ++i)
      at = at->appendChild(document->createElement(APSTRING("e")));
  }

  void attributes(int count)
  {
    for (int i = 0; i < count; ++i)
      root->setAttribute(numbered("a", i), APSTRING("v"));
  }
};

struct Operation
{
  char const* name;
  std::function<void(Subject&, int)> prepare;
  std::function<void(Subject&, int)> work;
};

void nothing(Subject&, int) {}

// Positions in an order that jumps through all of them.
int jump(int i, int count)
{
  return static_cast<int>(static_cast<long long>(i) * 7919 % count);
}

std::vector<Operation> const operations = {
  {"append", nothing, [](Subject& subject, int n) { subject.append(n); }},
  {"append, a child list of each element held", nothing,
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.lists.push_back(subject.append()->getChildNodes());
    }},
  {"append downwards", nothing, [](Subject& subject, int n) { subject.chain(n); }},
  {"append downwards, a list of each element held", nothing,
    [](Subject& subject, int n)
    {
      subject.at = subject.root;
      for (int i = 0; i < n; ++i)
      {
        subject.lists.push_back(subject.at->getChildNodes());
        subject.at = subject.at->appendChild(subject.document->createElement(APSTRING("e")));
      }
    }},
  {"insert before each item of a walk", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int n)
    {
      auto const list = subject.root->getChildNodes();
      for (int i = 0; i < n; ++i)
        subject.root->insertBefore(subject.document->createElement(APSTRING("i")), list->at(2 * i));
    }},
  {"a fresh child list for each item", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.root->getChildNodes()->at(i);
    }},
  {"items of a child list, jumping",
    [](Subject& subject, int n)
    {
      subject.append(n);
      subject.list = subject.root->getChildNodes();
    },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.list->at(jump(i, n));
    }},
  {"remove the first child", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.root->removeChild(subject.root->getFirstChild());
    }},
  {"remove each item of a child list",
    [](Subject& subject, int n)
    {
      subject.append(n);
      subject.list = subject.root->getChildNodes();
    },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.root->removeChild(subject.list->at(jump(i, n - i)));
    }},
  {"walk a result down a chain",
    [](Subject& subject, int n)
    {
      subject.chain(n);
      subject.list = subject.root->selectNodes(APSTRING("//e"));
    },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.list->at(i);
    }},
  {"setAttribute of new names", nothing, [](Subject& subject, int n) { subject.attributes(n); }},
  {"getAttribute of many", [](Subject& subject, int n) { subject.attributes(n); },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.root->getAttribute(numbered("a", i));
    }},
  {"items of a map",
    [](Subject& subject, int n)
    {
      subject.attributes(n);
      subject.map = subject.root->getAttributes();
    },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.map->item(i);
    }},
  {"items of a map, jumping",
    [](Subject& subject, int n)
    {
      subject.attributes(n);
      subject.map = subject.root->getAttributes();
    },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.map->item(jump(i, n));
    }},
  {"removeAttribute", [](Subject& subject, int n) { subject.attributes(n); },
    [](Subject& subject, int n)
    {
      for (int i = 0; i < n; ++i)
        subject.root->removeAttribute(numbered("a", jump(i, n)));
    }},
  {"set_text, longer each time", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int)
    {
      for (auto child = subject.root->getFirstChild(); child != nullptr; child = child->getNextSibling())
        for (int length = 8; length < 80; length += 8)
          child->set_text(apString(std::string(static_cast<std::size_t>(length), 'x').c_str()));
    }},
  {"select all", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int) { subject.root->selectNodes(APSTRING("//e[not(@a)]/following-sibling::e")); }},
  {"getElementsByTagName", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int) { subject.document->getElementsByTagName(APSTRING("e")); }},
  {"get_xml", [](Subject& subject, int n) { subject.append(n); },
    [](Subject& subject, int) { subject.document->get_xml(); }},
  {"get_xml of a chain", [](Subject& subject, int n) { subject.chain(n); },
    [](Subject& subject, int) { subject.document->get_xml(); }},
};

// The best of a few rounds, in seconds.
double seconds(Operation const& operation, int count)
{
  double best = 1e9;
  for (int round = 0; round < 3; ++round)
  {
    Subject subject;
    operation.prepare(subject, count);
    auto const begin = std::chrono::steady_clock::now();
    operation.work(subject, count);
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
  }
  return best;
}
}

int main(int count, char** arguments)
{
  int const n = count > 1 ? std::atoi(arguments[1]) : 20000;
  std::string const wanted = count > 2 ? arguments[2] : "";
  if (n < 1)
  {
    std::fprintf(stderr, "growth_benchmark [N [NAME]]\n");
    return 2;
  }
  std::printf("%-48s %10s %10s %10s %9s\n", "milliseconds", std::to_string(n).c_str(), std::to_string(2 * n).c_str(),
    std::to_string(4 * n).c_str(), "exponent");
  for (Operation const& operation : operations)
  {
    if (std::string(operation.name).find(wanted) == std::string::npos)
      continue;
    double const once = seconds(operation, n);
    double const twice = seconds(operation, 2 * n);
    double const four_times = seconds(operation, 4 * n);
    std::printf("%-48s %10.2f %10.2f %10.2f %9.2f\n", operation.name, once * 1e3, twice * 1e3, four_times * 1e3,
      std::log2(four_times / once) / 2);
  }
  return 0;
}
