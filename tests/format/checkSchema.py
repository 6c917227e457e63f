#!/usr/bin/env python3
"""Whether the schema of the file format accepts what the library writes, and nothing broken.

    checkSchema.py TOOL RANDOM_DOCUMENTS SOURCE_FOLDER EXAMPLE...

TOOL is zel, RANDOM_DOCUMENTS the program zel_random_documents, EXAMPLE a document that an example
makes; one that is not there is passed over. ZEL_TEST_FULL=1 takes more random documents.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

if shutil.which("xmllint") is None:
    print("skipped: xmllint is missing; scripts/install-deps installs it")
    sys.exit(77)

TOOL, RANDOM, SOURCE, *EXAMPLES = sys.argv[1:]
CHECK = os.path.join(SOURCE, "docs/schema/check")
FULL = os.environ.get("ZEL_TEST_FULL") == "1"
NB_RANDOM = 200 if FULL else 12
FLAG_3D = re.compile(rb"<3D/>")

TEMPORARY = tempfile.TemporaryDirectory()
FOLDER = pathlib.Path(TEMPORARY.name)


def check(*paths, options=()):
    """Those of the files that the schema refuses, with the reasons."""
    run = subprocess.run([sys.executable, CHECK, *options, *map(str, paths)], stdout=subprocess.PIPE,
                         text=True, errors="replace")
    lines = run.stdout.splitlines()
    return "\n".join(line for line in lines if ": holds" not in line)


def rewritten(path):
    target = FOLDER / ("saved_" + path.name)
    subprocess.run([TOOL, "rewrite", "--force", path, target], check=True, stdout=subprocess.DEVNULL)
    return target


SAMPLES = [rewritten(path) for path in
           sorted(pathlib.Path(SOURCE, "tests/data/samples").glob("*.zel"))]


def random_documents():
    folder = FOLDER / "random"
    folder.mkdir()
    subprocess.run([RANDOM, "1", str(NB_RANDOM), str(folder)], check=True)
    return sorted(folder.glob("*.zel"))


RANDOM_DOCUMENTS = random_documents()


class Accepted(unittest.TestCase):
    def test_documents_that_were_loaded_and_saved(self):
        self.assertGreater(len(SAMPLES), 2)
        self.assertEqual(check(*SAMPLES), "")

    def test_documents_with_random_content(self):
        self.assertEqual(len(RANDOM_DOCUMENTS), NB_RANDOM)
        self.assertEqual(check(*RANDOM_DOCUMENTS), "")

    @unittest.skipUnless(FULL and shutil.which("jing"), "jing takes seconds for a file")
    def test_another_checker_says_the_same(self):
        self.assertEqual(check(*SAMPLES, *RANDOM_DOCUMENTS[:10], options=["--jing"]), "")

    def test_only_the_flag_3D_keeps_other_parsers_from_reading_a_document(self):
        special = [path for path in SAMPLES + RANDOM_DOCUMENTS if FLAG_3D.search(path.read_bytes())]
        plain = [path for path in SAMPLES + RANDOM_DOCUMENTS if path not in special]
        self.assertTrue(special and plain)
        for path in plain:
            self.assertEqual(plain_xml(path), 0, path)
        for path in special:
            self.assertNotEqual(plain_xml(path), 0, path)

    def test_documents_of_the_examples(self):
        there = [path for path in EXAMPLES if os.path.exists(path)]
        if not there:
            self.skipTest("no example has been run")
        self.assertEqual(check(*there), "")

    def test_sections_of_others(self):
        file = changed(r"(<Working.Window>)", r"<My.Data a='1'><b/>text</My.Data>\1")
        self.assertEqual(check(file), "")

    def test_data_of_others_in_an_instance(self):
        file = changed(r"<Instance.Data ([^>]*)>", r"<Instance.Data Own='1' \1><Own>text</Own>")
        self.assertEqual(check(file), "")

    def test_shader_documents(self):
        shader = FOLDER / "shader.xml"
        path, name = material()
        subprocess.run([TOOL, "shader", "export", path, name, shader], check=True,
                       stdout=subprocess.DEVNULL)
        self.assertEqual(check(shader), "")


def material():
    """A document and the name of a material in it."""
    for path in RANDOM_DOCUMENTS:
        text = path.read_text(encoding="utf-8")
        section = re.search(r"\n\t<Properties>(.*?)\n\t</Properties>", text, re.S)
        names = re.findall(r"\n\t\t\t<Name en=\"([^\"&]+)\"/>", section.group(1) if section else "")
        if names:
            return path, names[0]
    raise AssertionError("no material with a plain name")


def plain_xml(path):
    return subprocess.run(["xmllint", "--huge", "--noout", str(path)],
                          stderr=subprocess.DEVNULL).returncode


def house():
    return next(path for path in SAMPLES if "house" in path.name)


def text_of_house():
    return house().read_text(encoding="utf-8")


def changed(pattern, replacement):
    text, count = re.subn(pattern, replacement, text_of_house(), count=1, flags=re.S)
    assert count == 1, pattern
    target = FOLDER / "changed.zel"
    target.write_text(text, encoding="utf-8")
    return target


class Refused(unittest.TestCase):
    """Files that are broken by hand in one place each."""

    CASES = {
        "an item out of its order": (r"(<Cone.Angle>[^<]*</Cone.Angle>)(\s*)(<Sharpness>[^<]*</Sharpness>)",
                                     r"\3\2\1"),
        "a required item is missing": (r"<Power>[^<]*</Power>", ""),
        "a required attribute is missing": (r' Shadow.Type="[^"]*"', ""),
        "an item stands twice": (r"(<Cone.Angle>[^<]*</Cone.Angle>)", r"\1\1"),
        "a number that is none": (r"<Sharpness>[^<]*</Sharpness>", "<Sharpness>0,5</Sharpness>"),
        "a real without its decimals": (r"<Sharpness>[^<]*</Sharpness>",
                                        "<Sharpness>1</Sharpness>"),
        "an integer with decimals": (r"<Map.Size>[^<]*</Map.Size>", "<Map.Size>1.5</Map.Size>"),
        "a word that nobody knows": (r'Shadow.Type="[^"]*"', 'Shadow.Type="Hard"'),
        "a channel of a colour beyond 255": (r'<Color R="\d+"', '<Color R="256"'),
        "an identifier that is too short": (r'(<Light [^>]*UUID=")..', r"\1"),
        "a flag with a text": (r"<Radiosity/>", "<Radiosity>1</Radiosity>"),
        "an unknown item in a known element": (r"(<Cone.Angle>)", r"<Cone.Colour/>\1"),
        "a node without its children": (r'<Node [^>]*Type="Mapping".*?</Property>',
                                        '<Node Type="Mapping"/></Property>'),
        "an instance without its component": (r' Component.UUID="[^"]*"', ""),
        "data of others behind that of the class": (r"</Instance.Data>", "<Own/></Instance.Data>"),
        "a class with the data of another one": (r'(<Object.Instance .*?<Class en=")ModelObject',
                                                 r"\1Billboard"),
        "no window": (r"<Working.Window>.*</Working.Window>", ""),
        "the preview is not the first": (r"(<Preview.Image>.*?</Preview.Image>)(\s*)(<File.Info.*?</File.Info>)",
                                         r"\3\2\1"),
        "a digit of a picture that is none": (r"(<Preview.Image>|<Image [^>]*>)<!\[CDATA\[.",
                                              r"\1<![CDATA[g"),
        "a letter in the points": (r"(<Points><!\[CDATA\[\s*)\d", r"\1x"),
        "the polygons are missing": (r"<Polygons>.*?</Polygons>", ""),
    }

    def test_each(self):
        for name, (pattern, replacement) in self.CASES.items():
            with self.subTest(name):
                file = changed(pattern, replacement)
                self.assertEqual(plain_xml(file), 0, "the XML is still good")
                self.assertNotEqual(check(file), "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
