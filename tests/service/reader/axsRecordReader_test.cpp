#include <axsRecordReader.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{
using Request = axsRecordReader::Request;
using Repeat = axsRecordReader::Repeat;

Request request(std::string const& path, std::vector<std::string> const& columns, Repeat repeat = Repeat::first)
{
  Request made;
  made.path = path;
  made.columns = columns;
  made.repeat = repeat;
  made.separator = "+";
  return made;
}

// The rows, each in parentheses, their values parted by '|', '-' for none.
std::string rows_of(std::string const& document, Request const& wanted)
{
  EXPECT_EQ("", axsRecordReader::complaint(wanted));
  axsRecordReader reader(wanted);
  std::string all;
  axmParseError error;
  auto const take = [&all](axsRecordReader::Row const& row)
  {
    all += '(';
    for (std::size_t i = 0; i < row.size(); ++i)
      all += (i == 0 ? "" : "|") + std::string(row[i].value_or("-"));
    all += ')';
    return true;
  };
  if (!reader.read(apByteArray(document.data(), document.size()), axmLoadOptions(), error, take))
    all += "error at " + std::to_string(error.line_number()) + ':' + std::to_string(error.column_number());
  return all;
}
}

TEST(axsRecordReader, takes_a_row_of_each_record)
{
  EXPECT_EQ("(1|One)(2|-)",
    rows_of("<l><b id='1'><t>One</t></b><x><b id='9'/></x><b id='2'/><bb id='8'/></l>", request("l/b", {"@id", "t"})));
}

TEST(axsRecordReader, columns_come_whatever_their_order_in_the_document)
{
  EXPECT_EQ("(2|1|3)", rows_of("<r><a>1</a><b c='3'>2</b></r>", request("r", {"b", "a", "b/@c"})));
}

TEST(axsRecordReader, an_attribute_of_another_element_is_none_of_the_record)
{
  EXPECT_EQ("(1|-)(2|x)", rows_of("<r><c i='1'/><c i='2' n='x'/></r>", request("r/c", {"@i", "@n"})));
}

TEST(axsRecordReader, texts_directly_in_an_element_are_joined)
{
  EXPECT_EQ("(a<bcd|x)", rows_of("<r><e>a&lt;<i>x</i>b<!--n--><![CDATA[c]]>d</e></r>", request("r/e", {".", "i"})));
}

TEST(axsRecordReader, an_empty_value_is_another_than_none)
{
  EXPECT_EQ("(||-)", rows_of("<r a=''><b/></r>", request("r", {"@a", "b", "c"})));
}

TEST(axsRecordReader, of_values_that_repeat_the_first_counts_or_all_are_joined)
{
  std::string const document = "<r><e><t k='1'>a</t><t>b</t><t k='3'/></e></r>";
  EXPECT_EQ("(a|1)", rows_of(document, request("r/e", {"t", "t/@k"})));
  EXPECT_EQ("(a+b+|1+3)", rows_of(document, request("r/e", {"t", "t/@k"}, Repeat::join)));
}

TEST(axsRecordReader, children_that_repeat_are_rows_with_what_is_theirs)
{
  EXPECT_EQ("(7|1|a|z)(7|2|-|z)(7|-|c|z)", rows_of("<r><e id='7'><t k='1' v='a'/><t k='2'/><s>z</s><t v='c'/></e></r>",
                                             request("r/e", {"@id", "t/@k", "t/@v", "s"}, Repeat::rows)));
  EXPECT_EQ("(7|-)", rows_of("<r><e id='7'/></r>", request("r/e", {"@id", "t/@k"}, Repeat::rows)));
  EXPECT_EQ("(1|x)(2|y)(3|-)",
    rows_of("<r><a>1</a><b>x</b><a>2</a><b>y</b><a>3</a></r>", request("r", {"a", "b"}, Repeat::rows)));
}

TEST(axsRecordReader, what_repeats_further_down_is_rows_too)
{
  EXPECT_EQ("(7|1)(7|2)(7|3)",
    rows_of("<r><e k='7'><l><f>1</f><f>2</f><f>3</f></l></e></r>", request("r/e", {"@k", "l/f"}, Repeat::rows)));
  EXPECT_EQ("(7|a|1)(7|a|2)(7|b|-)(7|c|3)",
    rows_of("<r><e k='7'><l n='a'><f>1</f><f>2</f></l><l n='b'/><l n='c'><f>3</f></l></e></r>",
      request("r/e", {"@k", "l/@n", "l/f"}, Repeat::rows)));
  EXPECT_EQ("(x|1|p)(x|2|q)(-|-|s)(y|3|-)",
    rows_of("<r><l><n>x</n><f>1</f><f>2</f></l><m>p</m><m>q</m><l/><l><n>y</n><f>3</f></l><m>s</m></r>",
      request("r", {"l/n", "l/f", "m"}, Repeat::rows)));
}

TEST(axsRecordReader, records_may_lie_in_records_of_another_path_only_once)
{
  EXPECT_EQ("(1)(2)", rows_of("<r><g><e k='1'><e k='0'/></e></g><g><e k='2'/></g></r>", request("r/g/e", {"@k"})));
}

TEST(axsRecordReader, a_name_in_the_path_may_be_any)
{
  EXPECT_EQ("(1)(2)", rows_of("<r><g><e k='1'/></g><h><e k='2'/><f k='3'/></h></r>", request("*/*/e", {"@k"})));
}

TEST(axsRecordReader, prefixes_that_are_given_mean_namespaces)
{
  Request wanted = request("p:r/p:e", {"p:t", "@p:k", "@k"});
  wanted.namespaces["p"] = "urn:x";
  EXPECT_EQ("(1|2|3)", rows_of("<r xmlns='urn:x' xmlns:q='urn:x'><q:e q:k='2' k='3'><t>1</t></q:e>"
                               "<e xmlns='urn:y'><t>4</t></e></r>",
                         wanted));
}

TEST(axsRecordReader, prefixes_that_are_not_given_are_those_of_the_document)
{
  EXPECT_EQ("(1)", rows_of("<q:r xmlns:q='urn:x'><q:e k='1'/><e k='2'/></q:r>", request("q:r/q:e", {"@k"})));
}

TEST(axsRecordReader, documents_with_a_type_and_a_mark_have_rows)
{
  EXPECT_EQ("(D|E)", rows_of("\xEF\xBB\xBF<!DOCTYPE r [<!ENTITY e 'E'><!ATTLIST a d CDATA 'D'>]><r><a>&e;</a></r>",
                       request("r/a", {"@d", "."})));
}

TEST(axsRecordReader, rows_before_an_error_are_taken)
{
  EXPECT_EQ("(1)(2)error at 2:12", rows_of("<r><e k='1'/><e k='2'></e>\n<e k='3'></f></r>", request("r/e", {"@k"})));
}

TEST(axsRecordReader, what_is_wrong_after_the_records_is_an_error_too)
{
  EXPECT_EQ("(1)error at 1:18", rows_of("<r><e k='1'/></r></r>", request("r/e", {"@k"})));
}

TEST(axsRecordReader, taking_may_be_ended)
{
  axsRecordReader reader(request("r/e", {"@k"}));
  std::string const document = "<r><e/><e/><e/></s>";
  axmParseError error;
  int taken = 0;
  EXPECT_TRUE(reader.read(apByteArray(document.data(), document.size()), axmLoadOptions(), error,
    [&](axsRecordReader::Row const&) { return ++taken < 2; }));
  EXPECT_EQ(2, taken);
  EXPECT_EQ(2u, reader.records());
}

TEST(axsRecordReader, a_request_that_means_nothing_is_complained_of)
{
  for (Request const& wrong : {request("", {"@k"}), request("r//a", {"@k"}), request("/r/a", {"@k"}),
         request("r/@a", {"@k"}), request("r", {"@"}), request("r", {"@a/b"}), request("r", {"a//b"}),
         request("r", {"@k", "@k"}), request("r", {"*"}), request("r", {"a/."}), request("p:*", {"@k"})})
  {
    EXPECT_NE("", axsRecordReader::complaint(wrong)) << wrong.path << ' ' << wrong.columns.front();
    axsRecordReader reader(wrong);
    axmParseError error;
    EXPECT_TRUE(reader.read(apByteArray("<x/>", 4), axmLoadOptions(), error,
      [](axsRecordReader::Row const&) { return ADD_FAILURE(), true; }));
  }
}

namespace
{
class Bytes final : public axsByteStream
{
public:
  Bytes(std::string text, bool good) : bytes(std::move(text)), is_good(good) {}

  std::size_t read(char* to, std::size_t size) override
  {
    std::size_t const count = bytes.copy(to, std::min<std::size_t>(size, 7), at);
    at += count;
    return count;
  }
  apString fault() const override { return is_good || at < bytes.size() ? apString() : APSTRING("the line is cut"); }

private:
  std::string bytes;
  bool is_good;
  std::size_t at = 0;
};
}

TEST(axsRecordReader, reads_streams_and_tells_of_their_faults)
{
  for (bool const good : {true, false})
  {
    Bytes stream("<r><e k='1'/></r>", good);
    axsRecordReader reader(request("r/e", {"@k"}));
    axmParseError error;
    EXPECT_EQ(good, reader.read(stream, apPath("-"), axmLoadOptions(), error,
                      [](axsRecordReader::Row const& row) { return row[0] == "1"; }));
    EXPECT_EQ(good, error.invalid());
    EXPECT_EQ(good ? "" : "the line is cut", std::string(error.message().to_utf8().view()));
  }
}

TEST(axsRecordReader, records_and_their_rows_are_counted)
{
  axsRecordReader reader(request("r/c", {"n"}, Repeat::rows));
  std::string const document = "<r><c><n>1</n><n>2</n></c><c/></r>";
  axmParseError error;
  EXPECT_TRUE(reader.read(apByteArray(document.data(), document.size()), axmLoadOptions(), error,
    [](axsRecordReader::Row const&) { return true; }));
  EXPECT_EQ(reader.records(), 2u);
  EXPECT_EQ(reader.rows(), 3u);
}
