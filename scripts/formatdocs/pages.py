"""The tables as Markdown, inside pages that are written by hand.

A page has a line "<!-- table KEY -->" where the table of an element goes, or "<!-- words NAME -->"
where a list of words goes, and a line "<!-- end of table -->" behind it.
"""
import re
import textwrap

from . import tables

PLACE = re.compile(r"<!-- (table|words) (.+?) -->\n.*?<!-- end of table -->", re.S)


def find_places(folder, known):
    """Notes where each table stands; each must stand once."""
    known.places = {}
    known.headings = {}
    for path in sorted(folder.glob("*.md")):
        heading = ""
        for line in path.read_text(encoding="utf-8").splitlines():
            if line.startswith("#"):
                heading = anchor(line.lstrip("# "))
                known.headings[line.lstrip("# ")] = f"{path.name}#{heading}"
            found = re.match(r"<!-- table (.+?) -->", line)
            if not found:
                continue
            key = found.group(1)
            if key not in known.by_key:
                raise tables.FormatError(f"{path.name}: no test has a table of {key}")
            if key in known.places:
                raise tables.FormatError(f"{path.name}: the table of {key} stands twice")
            known.places[key] = f"{path.name}#{heading}"
    missing = sorted(set(known.by_key) - set(known.places))
    if missing:
        raise tables.FormatError("no page of docs/format has a place for the tables of "
                                 + ", ".join(missing))


def anchor(heading):
    return re.sub(r"[^a-z0-9_ -]", "", heading.lower()).replace(" ", "-")


def filled(page, text, known):
    def table(match):
        what, key = match.groups()
        if what == "words":
            words = ", ".join(f"`{word}`" for word in known.words[key])
            text = "\n" + textwrap.fill(words, 100, break_on_hyphens=False) + "\n\n"
        else:
            text = rendered(page, known.by_key[key], known)
        return f"<!-- {what} {key} -->\n{text}<!-- end of table -->"
    return PLACE.sub(table, text)


def rendered(page, table, known):
    lines = ["", "| Item | Kind | New | Absent |", "|---|---|---|---|"]
    lines += rows_of(page, table["rows"], "", known, silent_items(table))
    notes = notes_of(table["rows"], "")
    if table["readOrder"] and table["readOrder"] != [row["name"] for row in table["rows"]]:
        notes.append("Read in the order " + ", ".join(f"`{name}`" for name in table["readOrder"])
                     + ".")
    if notes:
        lines += [""] + ["- " + note for note in notes]
    return "\n".join(lines) + "\n\n"


def silent_items(table):
    order = table["readOrder"] or [row["name"] for row in table["rows"]]
    start = table["guardedFrom"]
    return set(order[order.index(start):]) if start else set()


def rows_of(page, rows, prefix, known, silent):
    for row in rows:
        elsewhere = link_of(page, row, known)
        kind = elsewhere or kind_of(page, row, known)
        inner = prefix + row["name"] + "/"
        name = prefix + ("@" if row["attribute"] else "") + row["name"]
        yield f"| `{name}` | {kind} | {new(row)} | {absent(row, row['name'] in silent)} |"
        if elsewhere:
            continue
        yield from rows_of(page, row["rows"], inner, known, silent)
        if not row["rows"] and not row["kind"]:
            yield from items_inside(page, row, inner, known)


def link_to(page, key, known):
    return link(page, key.split(" ")[0], known.places[key])


def link(page, name, place):
    return f"[`{name}`]({place[len(page):] if place.startswith(page + '#') else place})"


def link_of(page, row, known):
    """A link for an item whose element has a table of its own."""
    name = row["name"]
    if row["attribute"] or row["kind"]:
        return ""
    if name not in known.by_key:
        has_section = name in known.headings and not row["rows"] and not is_value(row)
        return link(page, name, known.headings[name]) if has_section else ""
    key = known.keys_of_tag[name][0]
    of_table = tables.names(known.by_key[key]["rows"])
    if row["rows"]:
        return link_to(page, key, known) if tables.names(row["rows"]) == of_table else ""
    return link_to(page, key, known) if is_of_table(row, of_table) else ""


def is_value(row):
    kinds = {tables.kind_of_element(each) for each in tables.content(row) if each is not None}
    return bool(kinds - {None, "any content"})


def is_of_table(row, of_table):
    """Whether the texts of a row have no other items than that table."""
    allowed = {name for name, _ in of_table} | {"Type", "Shader", "UI.Value", "Node", "Id"}
    for element in tables.content(row):
        if element is not None and not ({child.tag for child in element} <= allowed | {"_3D"}
                                        and set(element.attrib) <= allowed):
            return False
    return True


def kind_of(page, row, known):
    if row["rows"]:
        return "element"
    if len(row["words"]) == 1:
        return f"`{row['words'][0]}`"
    if row["words"]:
        return "one of " + ", ".join(f"`{word}`" for word in row["words"])
    if row["kind"].startswith("list "):
        return "list of " + link_to(page, known.keys_of_tag[row["kind"][5:]][0], known)
    if row["kind"].startswith("words "):
        return "one of the words [below](#" + anchor(row["kind"][6:]) + ")"
    if row["kind"]:
        return row["kind"]
    if row["attribute"]:
        return tables.kind_of_text(row["full"], row["fresh"] or row["full"])
    full, fresh = tables.content(row)
    return kind_of_parsed(page, full if full is not None else fresh, fresh, known)


def kind_of_parsed(page, element, fresh, known):
    kind = tables.kind_of_element(element)
    if kind:
        return {"name": "text in `@en`", "texts": "text for each language",
                "reference": "identifier in `@UUID`"}.get(kind, kind)
    tags = [child.tag for child in element]
    if tags and len(set(tags)) == 1 and (len(tags) > 1 or fresh is None or not len(fresh)):
        return list_kind(page, element[0], known)
    return "element"


def list_kind(page, child, known):
    if set(child.attrib) in ({"UUID"}, {"Id"}) and not len(child):
        return f"list of `{child.tag}` with `@{list(child.attrib)[0]}`, an identifier"
    if child.tag in known.keys_of_tag:
        return "list of " + link_to(page, known.keys_of_tag[child.tag][0], known)
    return f"list of `{child.tag}`"


def items_inside(page, row, prefix, known):
    """What stands inside an item whose rows give its text alone."""
    full, fresh = tables.content(row) if not row["attribute"] else (None, None)
    element = full if full is not None else fresh
    if element is not None and tables.kind_of_element(element) is None:
        yield from children(page, element, prefix, known)


def children(page, element, prefix, known):
    seen = set()
    for name, value in element.attrib.items():
        yield f"| `{prefix}@{name}` | {tables.kind_of_text(value)} | | |"
    for child in element:
        if child.tag in seen or child.tag in known.headings:
            continue
        seen.add(child.tag)
        if set(child.attrib) in ({"UUID"}, {"Id"}) and not len(child):
            continue
        kind = kind_of_parsed(page, child, None, known)
        if not len(child) and not child.attrib and not child.text:
            kind = "flag"
        yield f"| `{prefix}{child.tag}` | {kind} | | |"
        if tables.kind_of_element(child) is None:
            yield from children(page, child, f"{prefix}{child.tag}/", known)


def new(row):
    """The value of a new object."""
    if row["kind"] == "flag":
        return "yes" if row["fresh"] else "no"
    if row["rows"]:
        return ""
    if not row["fresh"]:
        return "not written"
    if row["attribute"]:
        return new_text(row["fresh"])
    element = tables.content(row)[1]
    if element is None or len(element):
        return ""
    if element.attrib:
        values = list(element.attrib.values())
        if set(element.attrib) == {"Length"}:
            return "empty"
        return new_text(values[0]) if len(values) == 1 else ", ".join(shorter(v) for v in values)
    if element.text:
        return new_text(element.text)
    return "empty"


def new_text(text):
    if re.fullmatch("0{32}", text):
        return "null"
    if re.fullmatch("[0-9A-F]{32}", text):
        return "a fresh one"
    return shorter(text) if text else "empty"


def shorter(text):
    return re.sub(r"(\.\d+?)0+$", r"\1", text) if re.fullmatch(r"-?\d+\.\d{6}", text) else text


def absent(row, silent):
    """What a file without the item gives."""
    result = "stays"
    if row["kind"] == "flag":
        result = "no"
    elif row["message"]:
        result = "the reading ends in silence" if silent else "fails"
    elif row["absent"] != row["fresh"] and not row["rows"]:
        result = "gets another value"
    if row["alsoGone"]:
        result += "; nor are these read: " + ", ".join(f"`{name}`" for name in row["alsoGone"])
    return result


def notes_of(rows, prefix):
    notes = []
    for row in rows:
        for read, written in row["oldForms"]:
            notes.append(f"`{prefix}{row['name']}`: older files have `{read}`; it is written as "
                         f"`{written}`.")
        notes += notes_of(row["rows"], prefix + row["name"] + "/")
    return notes
