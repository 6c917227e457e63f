"""The tables as patterns of RELAX NG: what the library writes.

Each table gives a pattern "table.KEY" with the content of its element. A pattern TAG, which is the
content of the elements of that name, is that of the table, unless docs/schema/zel.rng defines it.
"""
from xml.sax.saxutils import quoteattr

from . import tables

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<!-- Made by scripts/format-docs of the tables of the unit tests. zel.rng includes it. -->
<grammar xmlns="http://relaxng.org/ns/structure/1.0">
"""

# Their content is more than the table, or several tables make it up; see zel.rng.
BY_HAND = {"Extended.Datas", "InsertionObject", "KeyFrame", "Maps", "Node", "View.Info"}

# What these end with depends on their class; zel.rng puts them together of what stands ahead of the
# class and what stands behind it.
BY_CLASS = {"Object.Definition": ([], ["Class", "Object.Data"]),
            "Object.Instance": (["Name"], ["Name", "Instance.Data"])}

VALUES = {"identifier": "identifier", "real": "real", "integer": "integer", "text": "text",
          "colour": "colour", "vector": "vector", "2D vector": "vector2D", "name": "name",
          "texts": "texts", "reference": "reference", "date": "date", "matrix": "matrix",
          "table": "table"}


def rendered(known):
    lines = [HEAD.rstrip("\n")]
    for key, table in sorted(known.by_key.items()):
        name = "table." + key.replace(" ", ".")
        if key in BY_CLASS:
            ahead, not_behind = BY_CLASS[key]
            lines += define(name + ".ahead", pattern_of_rows(
                [row for row in table["rows"] if row["name"] in ahead], known) or ["<empty/>"])
            lines += define(name + ".behind", pattern_of_rows(
                [row for row in table["rows"] if row["name"] not in not_behind], known))
            continue
        lines += define(name, pattern_of_rows(table["rows"], known))
        if table["tag"] == "Instance.Data":
            lines += define("with.others." + name[6:], inside(
                "mixed", foreign(table["rows"]) + reference(name)))
        if key == table["tag"] and key not in BY_HAND:
            lines += define(key, reference(name))
    return "\n".join(lines + ["</grammar>"]) + "\n"


def define(name, body):
    return indented(inside("define", body, name=name), 2)


def foreign(rows):
    """Items that are none of these."""
    def other_than(kind, names):
        name = inside("anyName", inside("except", [f"<name>{each}</name>" for each in names]))
        return inside("zeroOrMore", inside(kind, name + (
            ["<text/>"] if kind == "attribute" else reference("any.content"))))
    attributes = [row["name"] for row in rows if row["attribute"]]
    elements = [row["name"] for row in rows if not row["attribute"]]
    return other_than("attribute", attributes) + other_than("element", elements)


def indented(lines, width):
    return [" " * width + line for line in lines]


def inside(tag, lines, **attributes):
    written = "".join(f" {name}={quoteattr(value)}" for name, value in attributes.items())
    if not lines:
        return [f"<{tag}{written}/>"]
    return [f"<{tag}{written}>"] + indented(lines, 2) + [f"</{tag}>"]


def element(name, lines):
    name = "_" + name if name[0].isdigit() else name
    return inside("element", lines or ["<empty/>"], name=name)


def reference(name):
    return [f"<ref name={quoteattr(name)}/>"]


def optional(lines, needed):
    return lines if needed else inside("optional", lines)


def pattern_of_rows(rows, known):
    lines = []
    for row in rows:
        lines += pattern_of_row(row, known)
    return lines


def pattern_of_row(row, known):
    if row["rows"]:
        return element(row["name"], pattern_of_rows(row["rows"], known))
    always = bool(row["full"]) and bool(row["fresh"]) and row["kind"] != "flag"
    if row["attribute"]:
        if row["kind"].startswith("words "):
            row = dict(row, words=known.words[row["kind"][6:]])
        value = choice(row["words"]) if row["words"] else value_of(
            tables.kind_of_text(row["full"], row["fresh"] or row["full"]))
        return optional(inside("attribute", value, name=row["name"]), always)
    return optional(element(row["name"], content_of(row, known)), always)


def choice(words):
    values = [f"<value>{word}</value>" for word in words]
    return inside("choice", values) if len(values) > 1 else values


def value_of(kind):
    return reference("value." + VALUES[kind]) if kind != "text" else ["<text/>"]


def content_of(row, known):
    if row["kind"] == "flag":
        return ["<empty/>"]
    if row["words"]:
        return choice(row["words"])
    if row["kind"].startswith("list "):
        return inside("zeroOrMore", element(row["kind"][5:], reference(row["kind"][5:])))
    if row["kind"]:
        return value_of(row["kind"])
    if row["name"] in BY_HAND:
        return reference(row["name"])
    full, fresh = tables.content(row)
    return content_of_elements([each for each in (full, fresh) if each is not None], known)


def content_of_elements(examples, known):
    """The content that elements of one name have in common."""
    if examples[0].tag in BY_HAND:
        return reference(examples[0].tag)
    kinds = {tables.kind_of_element(each) for each in examples if not is_empty(each)}
    if kinds & {"texts", "name"}:
        return value_of("texts" if "texts" in kinds else "name")
    if len(kinds) == 1 and None not in kinds:
        return value_of(kinds.pop())
    own = known.by_key.get(examples[0].tag)
    if own is not None and any(looks_like(each, own) for each in examples):
        return reference(examples[0].tag)
    return attributes_of(examples) + children_of(examples, known)


def is_empty(each):
    return not len(each) and not each.attrib and not each.text


def looks_like(each, table):
    needed = {row["name"] for row in table["rows"] if row["fresh"] and row["full"]}
    there = {child.tag for child in each} | set(each.attrib)
    return bool(needed) and needed <= there


def attributes_of(examples):
    lines = []
    for name in dict.fromkeys(name for each in examples for name in each.attrib):
        values = [each.attrib[name] for each in examples if name in each.attrib]
        lines += optional(inside("attribute", value_of(tables.kind_of_text(*values)), name=name),
                          len(values) == len(examples))
    return lines


def children_of(examples, known):
    tags = list(dict.fromkeys(child.tag for each in examples for child in each))
    texts = [each.text for each in examples if each.text]
    if not tags:
        return value_of(tables.kind_of_text(*texts)) if texts else ["<empty/>"]
    lines = []
    for tag in tags:
        groups = [[child for child in each if child.tag == tag] for each in examples]
        counts = {len(group) for group in groups}
        one = element(tag.lstrip("_") if tag[1:2].isdigit() else tag,
                      content_of_elements([child for group in groups for child in group], known))
        if len(counts) == 1 and max(counts) >= 1 and len(examples) > 1:
            lines += one * max(counts)
        elif max(counts) > 1 or len(tags) == 1:
            lines += inside("zeroOrMore", one)
        else:
            lines += optional(one, 0 not in counts)
    return inside("mixed", lines) if texts else lines
