// Documents of any bytes against a fixed schema: a validated load and a check must be of one opinion, and the first error
// of a check must not depend on how many are asked for.

#include <apProcessControl.h>
#include <axmDocumentFactory.h>
#include <axsRegister.h>
#include <axsValidation.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{
char const schema[] = R"(<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>
<xs:element name='r'><xs:complexType><xs:sequence><xs:element ref='h' minOccurs='0' maxOccurs='3'/>
<xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element name='d' type='xs:decimal'/><xs:element name='t' type='xs:date'
 nillable='true'/><xs:element ref='g'/><xs:element name='m' type='m' default='x'/><xs:element name='l'><xs:simpleType>
<xs:list itemType='xs:int'/></xs:simpleType></xs:element></xs:choice><xs:sequence minOccurs='0' maxOccurs='4'>
<xs:element name='a' minOccurs='2' maxOccurs='3'/><xs:element name='b' minOccurs='0'/></xs:sequence>
<xs:any namespace='##other' processContents='lax' minOccurs='0' maxOccurs='unbounded'/></xs:sequence>
<xs:attribute name='i' type='xs:ID'/><xs:attribute name='f' fixed='1' type='xs:int'/><xs:anyAttribute namespace='##other'
 processContents='lax'/></xs:complexType>
<xs:key name='k'><xs:selector xpath='.//g'/><xs:field xpath='@k'/></xs:key>
<xs:keyref name='q' refer='k'><xs:selector xpath='g|*/g'/><xs:field xpath='@q'/></xs:keyref></xs:element>
<xs:element name='g'><xs:complexType><xs:sequence><xs:element ref='g' minOccurs='0' maxOccurs='2'/></xs:sequence>
<xs:attribute name='k' type='xs:int'/><xs:attribute name='q' type='xs:int'/><xs:attribute name='n' type='xs:QName'/>
<xs:attribute name='e' type='xs:IDREFS'/></xs:complexType></xs:element>
<xs:element name='h' abstract='true' type='base'/><xs:element name='s' substitutionGroup='h' type='more'/>
<xs:complexType name='base'><xs:all><xs:element name='x' minOccurs='0'/><xs:element name='y' type='xs:boolean'/></xs:all>
</xs:complexType><xs:complexType name='more'><xs:complexContent><xs:restriction base='base'><xs:all>
<xs:element name='y' type='xs:boolean'/></xs:all></xs:restriction></xs:complexContent></xs:complexType>
<xs:complexType name='m' mixed='true'><xs:sequence><xs:element name='n' minOccurs='0' type='xs:token'/></xs:sequence>
</xs:complexType></xs:schema>)";

// A file with the schema, which is the process's own and goes with it.
class SchemaFile
{
public:
  SchemaFile()
    : path((std::filesystem::temp_directory_path() /
            ("axm_fuzz_validation_" + std::to_string(apProcessControl::getpid()) + ".xsd"))
             .string())
  {
    std::ofstream(path) << schema;
  }
  SchemaFile(SchemaFile const&) = delete;
  SchemaFile& operator=(SchemaFile const&) = delete;
  ~SchemaFile() { std::filesystem::remove(path); }

  axmLoadOptions options() const
  {
    axmLoadOptions made(axmValidateWithSchemas);
    made.set_no_namespace_schema(apPath(path.c_str()));
    return made;
  }

private:
  std::string const path;
};

bool is_same(axmParseError const& left, axmParseError const& right)
{
  return left.message() == right.message() && left.line_number() == right.line_number() &&
         left.column_number() == right.column_number();
}
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  static SchemaFile const file;
  static axmLoadOptions const with_schema = file.options();
  static axsValidation const validation(with_schema);
  axs_register();
  utServiceName resolved;
  auto const engine = utService::locate_service<axmDocumentFactory>(utServiceName(ut_lit("XMLService")), resolved);

  apByteArray const document(reinterpret_cast<char const*>(data), size);
  axsValidation::Result const all = validation.check(document, 1000);
  axsValidation::Result const first = validation.check(document, 1);
  axmParseError error;
  bool const is_loaded = engine->loadDocument(document, with_schema, error) != nullptr;
  if (!validation.schema_errors().empty() || is_loaded != all.errors.empty() || is_loaded != first.errors.empty())
    std::abort();
  if (!is_loaded && (!is_same(all.errors.front(), first.errors.front()) || !is_same(all.errors.front(), error)))
    std::abort();
  return 0;
}
