#!/usr/bin/env python3
"""Writes documents that are odd, each in its own way, for check_rows.py: write_odd_documents.py FOLDER"""

import os
import sys

PROLOG = '<?xml version="1.0"?>\n'

TEXTS = {
    "mark": "\ufeff<r><e k='1'>one</e><e k='2'>two</e><e>three</e></r>",
    "no_declaration": "<r><e k='1'/><e k='2'/></r>",
    "doctype": PROLOG + "<!DOCTYPE r [<!ENTITY e 'E&#38;lt;'><!ENTITY f '&e;&e;'><!ATTLIST e d CDATA 'D' k NMTOKENS ' 1  2 '>]>"
    "<r><e>&f;</e><e k=' 3  4 ' d='&e;'>x&e;y</e><e/></r>",
    "entity_with_tags": "<!DOCTYPE r [<!ENTITY t '<t a=\"1\">in</t>x<t/>'>]><r><e>&t;</e><e>a&t;b&t;</e><e><t/></e></r>",
    "comments": "<r><!--<e k='no'/>--><e k='1'>a<!-- > --></e><!----><e k='2'>b<!--x-->c<?p >?>d</e><!-- - --></r><!--e-->",
    "cdata": "<r><e><![CDATA[<e k='no'>]]></e><![CDATA[<e>]]><e k='1'>a<![CDATA[]]]]>]]&gt;<![CDATA[]]>b</e><e><![CDATA[&amp;]]></e></r>",
    "instructions": PROLOG + "<?a <r>?><r><?e k='1'?><e k='2'><?x?></e><e k='3'/></r><?b?>",
    "greater": "<r a='>'><e k='>' l='/>'>a > b</e><e k='<' l='x'/></r>".replace("'<'", "'&lt;'"),
    "quotes": """<r><e k="it's" l='say "no"'>'"</e><e k='&quot;,&apos;' l="&#34;"/></r>""",
    "commas": "<r><e k='a,b'>x,y</e><e k='&#10;'>two\nlines</e><e k='&#13;&#9;'>\ttab</e><e k=''> </e></r>",
    "line_ends": "<r>\r\n<e k='a\r\nb'>x\r\ny\rz</e>\r<e k='&#13;&#10;'>&#13;</e>\r\n</r>\r\n",
    "space_in_tags": "<r\n>\n<e\tk = '1'\n\tl\n=\n'2' ></e\n><e k=\"3\"\t/></r >",
    "space_only": "<r><e> </e><e>\n\t</e><e xml:space='preserve'>  </e><e></e><e/> <e> a </e></r>",
    "prefixes": "<p:r xmlns:p='urn:p' xmlns:q='urn:p' xmlns='urn:d'><p:e p:k='1' k='2'/><q:e q:k='3'>t</q:e><e k='4'/><e xmlns='' k='5'/></p:r>",
    "default_namespaces": "<r xmlns='urn:a'><e k='1'><t>x</t></e><e xmlns='urn:b' k='2'><t>y</t></e><g><e k='3'/></g></r>",
    "nested_records": "<e k='1'><e k='2'><e k='3'><e k='4'/>in</e></e>a<e k='5'/>b</e>",
    "similar_names": "<r><items k='0'/><item k='1'/><it k='2'/><item-x k='3'/><item.y k='4'/><_item k='5'/></r>",
    "self_closing": "<r><e/><e k='1'/><e><t/></e><e k='2'><t k='3'/><t/>x</e><f/></r>",
    "absent": "<r><e a='1' b='2' c='3'/><e b='4'/><e c='5'/><e/><e a='6'/></r>",
    "order": "<r><e><a>1</a><b>2</b></e><e><b>3</b><a>4</a></e><e><a>5</a><b>6</b><a>7</a></e><e><b/></e></r>",
    "mixed": "<r><e>a<b>b</b>c<b>d</b>e</e><e><b/>f</e><e>g<b>h<c>i</c>j</b></e></r>",
    "references": "<r><e k='&#x41;&#66;'>&lt;&gt;&amp;&quot;&apos;&#x1F600;</e><e k='&amp;lt;'>&#38;#60;</e></r>",
    "many_columns": "<r>" + "".join(
        "<e " + " ".join(f"a{j}='{i * j % 7}'" for j in range(60) if (i + j) % 3) + "/>" for i in range(30)) + "</r>",
    "long_values": "<r>" + "".join(f"<e k='{'v' * n}'>{'t' * n}</e>" for n in (1, 4095, 4096, 4097, 65535, 65536, 70000, 200000)) + "</r>",
    "deep": "<a>" * 3000 + "<e k='1'>x</e>" + "</a>" * 3000,
    "unicode": "<r\u00e9f><\u00e9l\u00e9ment cl\u00e9='\u00e0'>\u65e5\u672c\U0001d11e</\u00e9l\u00e9ment><\u00e9l\u00e9ment/></r\u00e9f>",
    "one_line": "<r>" + "".join(f"<e k='{i}'><t>{i}</t></e>" for i in range(2000)) + "</r>",
    "lines": "<r>\n" + "".join(f"  <e k='{i}'>\n    <t>{i}</t>\n  </e>\n" for i in range(2000)) + "</r>\n",
    "groups": "<r>" + "".join(f"<g n='{i}'>" + "<e k='1'/>" * (i % 4) + "</g><h/>" for i in range(50)) + "</r>",
    "attribute_defaults": "<!DOCTYPE r [<!ATTLIST e d CDATA 'D' xml:lang CDATA 'de'>]><r><e/><e d=''/><e xml:lang='fr'>x</e></r>",
    "empty_root": "<r/>",
    "root_record": "<r k='1'>x</r>",
    # What is not well-formed.
    "wrong_end": "<r><e k='1'/></s>",
    "wrong_after": "<r><e k='1'/></r><r/>",
    "wrong_entity": "<r><e>&none;</e></r>",
    "wrong_attribute": "<r><e k='1' k='2'/></r>",
    "wrong_cut": "<r><e k='1'/><e k='2",
    "wrong_prefix": "<r><p:e/></r>",
    "wrong_less": "<r><e k='<'/></r>",
    "wrong_cdata_end": "<r><e>]]></e></r>",
}

ENCODED = {
    "utf_16_le": ("utf-16-le", "utf-16", True),
    "utf_16_be": ("utf-16-be", "utf-16", True),
    "latin_1": ("latin-1", "iso-8859-1", False),
    "windows_1252": ("cp1252", "windows-1252", False),
    "latin_9": ("iso-8859-15", "iso-8859-15", False),
    "ascii": ("ascii", "us-ascii", False),
}

ENCODED_TEXT = "<r><e k='1'>a&amp;b\u00e9</e>\n<e k='2\u00fc'/><g/><e k='3'><t>\u00e4</t>x</e></r>\n"


def main():
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    for name, text in TEXTS.items():
        with open(os.path.join(folder, name + ".xml"), "wb") as stream:
            stream.write(text.encode())
    for name, (codec, declared, has_mark) in ENCODED.items():
        text = f"<?xml version='1.0' encoding='{declared}'?>\n" + ENCODED_TEXT
        data = (("\ufeff" if has_mark else "") + text).encode(codec, errors="xmlcharrefreplace")
        with open(os.path.join(folder, name + ".xml"), "wb") as stream:
            stream.write(data)


if __name__ == "__main__":
    main()
