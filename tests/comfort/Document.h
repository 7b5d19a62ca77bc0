#pragma once

#include <axm.h>
#include <axsRegister.h>

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

/// A document from its text, through the default engine.
inline std::shared_ptr<axmDocument> document_of(std::string_view text)
{
  axs_register();
  auto const document = axm::load_string(text);
  EXPECT_TRUE(document) << document.error();
  return document ? *document : nullptr;
}
