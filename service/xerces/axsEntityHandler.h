#pragma once

#include "axsReadError.h"

#include <xercesc/framework/XMLEntityHandler.hpp>

#include <functional>

/// Answers the parser when a document needs an external entity: with a local file that the document names relative to
/// itself, or with an error. It never lets the parser look for itself.
class axsEntityHandler final : public xercesc::XMLEntityHandler
{
public:
  /// `place` tells where the parser is.
  axsEntityHandler(bool resolution_disabled, std::function<axsReadError()> place);

  void endInputSource(xercesc::InputSource const&) override {}
  bool expandSystemId(XMLCh const*, xercesc::XMLBuffer&) override { return false; }
  void resetEntities() override {}
  void startInputSource(xercesc::InputSource const&) override {}
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* wanted) override;

private:
  bool disabled;
  std::function<axsReadError()> current_place;
};
