#pragma once

#include <apPath.h>
#include <apString.h>
#include <axmCommentNode.h>
#include <axmDocumentFactory.h>
#include <axmNamedNodeMap.h>
#include <axmNodeList.h>
#include <axmTextNode.h>
#include <axsRegister.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

// The engine as an application meets it: through the registry.
inline std::shared_ptr<axmDocumentFactory> engine()
{
  axs_register();
  utServiceName resolved;
  return utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);
}

inline apString wide(std::string_view utf8)
{
  return apString::from_utf8(utf8);
}

inline std::string narrow(apString const& text)
{
  utString const utf8 = text.to_utf8();
  return std::string(utf8.c_str(), static_cast<std::size_t>(utf8.length()));
}

inline apByteArray bytes(std::string_view text)
{
  return apByteArray(text.data(), text.size());
}

inline std::shared_ptr<axmDocument> load(
  std::string_view text, axmLoadOptions const& options = axmLoadOptions(axmValidateNone))
{
  axmParseError error;
  std::shared_ptr<axmDocument> document = engine()->loadDocument(bytes(text), options, error);
  EXPECT_EQ(document != nullptr, error.invalid());
  EXPECT_TRUE(document != nullptr) << narrow(error.message()) << " in " << text.substr(0, 200);
  return document;
}

inline std::shared_ptr<axmElement> load_root(std::string_view text)
{
  std::shared_ptr<axmDocument> const document = load(text);
  return document == nullptr ? nullptr : document->getDocumentElement();
}

// The error of a load that must fail.
inline axmParseError error_of(std::string_view text, axmLoadOptions const& options = axmLoadOptions(axmValidateNone))
{
  axmParseError error;
  EXPECT_EQ(engine()->loadDocument(bytes(text), options, error), nullptr) << text.substr(0, 200);
  EXPECT_FALSE(error.invalid());
  EXPECT_FALSE(error.message().empty());
  return error;
}

inline std::string saved(std::shared_ptr<axmDocument> const& document)
{
  apByteArray output;
  EXPECT_TRUE(engine()->saveDocument(document, output));
  return std::string(output.data(), output.size());
}

inline std::string const declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// A file of the test's own, which goes with it.
class TestFile
{
public:
  TestFile(std::string const& given, std::string_view contents) : name(given)
  {
    std::FILE* const stream = path().file_open(apPath::write_mode());
    std::fwrite(contents.data(), 1, contents.size(), stream);
    std::fclose(stream);
  }
  TestFile(TestFile const&) = delete;
  TestFile& operator=(TestFile const&) = delete;
  ~TestFile() { path().delete_file(); }

  apPath path() const { return apPath(name.c_str()); }

  std::string contents() const
  {
    std::string all;
    std::FILE* const stream = path().file_open(apPath::read_mode());
    char block[4096];
    for (std::size_t got; stream != nullptr && (got = std::fread(block, 1, sizeof block, stream)) > 0;)
      all.append(block, got);
    if (stream != nullptr)
      std::fclose(stream);
    return all;
  }

  std::string name;
};
