"""The tables of elements, as the unit tests give them, and what the texts in them are."""
import json
import os
import re
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree


class FormatError(Exception):
    pass


# Named so that the run takes a second; a table that these leave out is missing in the pages, whose
# tests then fail.
TESTS = "*Form*:*Xml*:Channels.*"


class Tables:
    """All tables by their key, which is the tag, followed by a word if a tag has several."""

    def __init__(self):
        self.by_key = {}
        self.keys_of_tag = {}
        self.words = {}

    def add(self, table):
        key = table["tag"] + (" " + table["which"] if table["which"] else "")
        old = self.by_key.get(key)
        if old is None:
            self.by_key[key] = table
            self.keys_of_tag.setdefault(table["tag"], []).append(key)
        elif names(old["rows"]) != names(table["rows"]):
            raise FormatError(f"{table['file']}: a second table of {key}; name it with CForm::which")


def read(program):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "tables")
        environment = {name: value for name, value in os.environ.items() if name[:6] != "GTEST_"}
        environment["ZEL_FORMAT_TABLES"] = path
        run = subprocess.run([program, "--gtest_brief=1", "--gtest_filter=" + TESTS],
                             env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                             text=True, errors="replace")
        if run.returncode != 0:
            raise FormatError("the unit tests fail:\n" + run.stdout[-2000:])
        known = Tables()
        with open(path, encoding="utf-8") as lines:
            for line in lines:
                found = json.loads(line)
                if "tag" in found:
                    known.add(found)
                else:
                    known.words[found["name"]] = found["words"]
    return known


def names(rows):
    return [(row["name"], names(row["rows"])) for row in rows]


def parsed(text):
    """The elements of a text; names that begin with a digit, which XML has not, get a "_"."""
    return list(ElementTree.fromstring("<E>" + re.sub(r"<(/?)(?=\d)", r"<\1_", text) + "</E>"))


def kind_of_text(*texts):
    """What plain texts are: identifier, real, integer or text."""
    for kind, pattern in (("identifier", r"[0-9A-F]{32}"), ("real", r"-?\d+\.\d{6}"),
                          ("integer", r"-?\d+")):
        if all(re.fullmatch(pattern, text) for text in texts) and any(texts):
            return kind
    return "text"


# Elements of several children that count as one value.
OF_SEVERAL = {"date": ["Month", "Day", "Hour", "Minute", "Year"], "matrix": ["Line"] * 4}

# They hold what others put there, too.
OF_ANY_CONTENT = {"Object.Data", "Instance.Data", "Extended.Datas"}


def kind_of_element(element):
    """What an element is that has one value; None for others."""
    attributes = set(element.attrib)
    if element.tag in OF_ANY_CONTENT:
        return "any content"
    if attributes == {"Length"}:
        return "table"
    if len(element):
        tags = [child.tag for child in element]
        return next((kind for kind, wanted in OF_SEVERAL.items() if tags == wanted), None)
    if element.text:
        return kind_of_text(element.text) if not attributes else None
    for kind, wanted in (("colour", "RGB"), ("vector", "XYZ"), ("2D vector", "XY")):
        if attributes == set(wanted):
            return kind
    if attributes == {"UUID"}:
        return "reference"
    if attributes and all(re.fullmatch("[a-z]{2}", name) for name in attributes):
        return "name" if attributes == {"en"} else "texts"
    return None


def content(row):
    """The text inside the element of a row in a full and in a new file; None where it isn't."""
    def inside(text):
        elements = parsed(text)
        return elements[0] if elements else None
    return inside(row["full"]), inside(row["fresh"])
