#pragma once

#include <axmNodeList.h>

#include <vector>

class axsNode;

/// The nodes that a search found, as they were then. Holds all of them.
class axsResultList final : public axmNodeList
{
public:
  explicit axsResultList(std::vector<axsNode*> found) noexcept;
  ~axsResultList() override;

  std::shared_ptr<axmElement> at(int index) override;
  int length() const override;

private:
  std::vector<axsNode*> nodes;
};
