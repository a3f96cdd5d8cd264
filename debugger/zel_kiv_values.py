"""How gdb shows the value trees of the stand-ins: as JSON.

gdb loads this by itself for libzel.dataformats, whose own debug information says how a value lies.
"""

import json

import gdb

ROOT = "zel::dataformats::data::"


def text(string):
    """The characters of a standard string."""
    size = int(string["_M_string_length"])
    return string["_M_dataplus"]["_M_p"].string(errors="replace", length=size)


def listed(entries, opening, closing):
    """So many entries as gdb prints of anything."""
    most = gdb.parameter("print elements")
    if most is not None and len(entries) > most:
        entries = entries[:most] + ["..."]
    return opening + ", ".join(entries) + closing


def members(value, depth):
    """The entries of an object, which gdb's printer for a map gives as key, pointer, key, pointer."""
    walker = gdb.default_visualizer(value["m_entries"]["m_entries"])
    if walker is None:
        return ["(gdb has no printers for the standard library)"]
    parts = [part for _, part in walker.children()]
    pointer = gdb.lookup_type(ROOT + "Value").pointer()
    return [
        json.dumps(text(key), ensure_ascii=False) + ": " + as_json(held.cast(pointer), depth)
        for key, held in zip(parts[::2], parts[1::2])
    ]


def items(value, depth):
    """The entries of an array."""
    first, last = (
        value["m_entries"]["m_entries"]["_M_impl"][end] for end in ("_M_start", "_M_finish")
    )
    return [as_json(first[index], depth) for index in range(int(last - first))]


WAYS = {
    "Null": lambda value, depth: "null",
    "Boolean": lambda value, depth: json.dumps(bool(value["m_value"])),
    "Integer": lambda value, depth: json.dumps(int(value["m_value"])),
    "Float": lambda value, depth: json.dumps(float(value["m_value"])),
    "Blob": lambda value, depth: json.dumps(text(value["m_bytes"]), ensure_ascii=False),
    "String": lambda value, depth: json.dumps(text(value["m_text"]), ensure_ascii=False),
    "Array": lambda value, depth: listed(items(value, depth), "[", "]"),
    "Object": lambda value, depth: listed(members(value, depth), "{", "}"),
}


def as_json(pointer, depth):
    """The value that is pointed at, down to as many levels as gdb prints of anything."""
    if not int(pointer):
        return "null"
    if depth == 0:
        return "..."
    value = pointer.cast(pointer.dynamic_type).dereference()
    way = WAYS.get(value.type.unqualified().name.replace(ROOT, ""))
    return way(value, depth - 1) if way else "(of an unknown class)"


class Tree:
    """A value with all that it holds."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        base = gdb.lookup_type(ROOT + "Value").pointer()
        deepest = gdb.parameter("print max-depth")
        return as_json(self.value.address.cast(base), -1 if deepest is None else deepest)


def look_up(value):
    """The printer for a value of the platform, whichever class of it the program names."""
    name = value.type.strip_typedefs().unqualified().name or ""
    is_value = name.startswith(ROOT) and name[len(ROOT) :] in {"Value", *WAYS}
    return Tree(value) if is_value and value.address is not None else None
