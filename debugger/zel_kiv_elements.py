"""How gdb shows elements and resources: by the fields that are set.

Reads nothing but the members' own names: `m_<key>` holds a field, the flags that follow it,
`m_<key>_is...`, say whether it is set.
"""

import re

import gdb

ROOT = "zel::kiv::common::"


def bases(kind):
    """The class itself and every base of it, nearest first."""
    kind = kind.strip_typedefs().unqualified()
    yield kind
    if kind.code == gdb.TYPE_CODE_STRUCT:
        for field in kind.fields():
            if field.is_base_class:
                yield from bases(field.type)


def entries(vector):
    """What a vector holds; whether gdb has printers for the standard library or not."""
    first, last = (vector["_M_impl"][end] for end in ("_M_start", "_M_finish"))
    return [first[index] for index in range(int(last - first))]


def target(pointer):
    """What a pointer to an element points at, as the class that it really is."""
    if not int(pointer):
        return "null"
    return pointer.cast(pointer.dynamic_type).dereference()


def class_of(value):
    """The name of the class, from the table of its operations where debug information lacks it."""
    table = value.address.cast(gdb.lookup_type("long").pointer()).dereference()
    found = re.match(r"vtable for (\S+)", gdb.execute(f"info symbol {int(table)}", to_string=True))
    name = found.group(1) if found else value.type.name
    return name[len(ROOT) :] if name.startswith(ROOT) else name


class Element:
    """An element by its class and the fields that are set, nested ones and all."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        name = class_of(self.value)
        known = self.value.type.unqualified().name == ROOT + name
        return name if known else name + " (not in the debug information)"

    def children(self):
        for name, flags in self.fields():
            if any(self.value[flag] for flag in flags):
                yield from shown(name[len("m_") :], self.value[name])

    def fields(self):
        """The members that hold fields, each with the names of its flags."""
        found = []
        for member in self.value.type.fields():
            if found and member.name.startswith(found[-1][0] + "_is"):
                found[-1][1].append(member.name)
            elif not member.is_base_class:
                found.append((member.name, []))
        return found


def shown(key, value):
    """The children that a field makes: one for each element of a list of them, otherwise itself."""
    kind = value.type.strip_typedefs()
    if kind.code == gdb.TYPE_CODE_PTR:
        yield key, target(value)
    elif kind.name.startswith("std::vector<") and "*" in kind.name:
        for index, entry in enumerate(entries(value)):
            yield f"{key}[{index}]", target(entry)
    else:
        yield key, value


class Resource:
    """A resource by its class, the number of its slots, and its elements."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return f"{class_of(self.value)} of {len(entries(self.value['m_objects']))}"

    def children(self):
        for index, owner in enumerate(entries(self.value["m_objects"])):
            # The owner of an element is as large as the pointer that it holds, and laid out so.
            element = owner.type.template_argument(0).pointer()
            yield f"[{index}]", target(owner.address.cast(element.pointer()).dereference())


def look_up(value):
    """The printer for a value, if it is an element or a resource of which the members are known."""
    if value.type.strip_typedefs().code != gdb.TYPE_CODE_STRUCT or value.address is None:
        return None
    for base in bases(value.type):
        if base.name in (ROOT + "IObjectBase", ROOT + "IResourceBase"):
            whole = value.address.cast(value.address.dynamic_type).dereference()
            if base.name.endswith("IObjectBase"):
                return Element(whole)
            return Resource(whole) if whole.type.unqualified().name != base.name else None
    return None
