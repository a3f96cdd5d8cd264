"""Holds the built library against the definitions, whose names and types are worked out here a second
time: what comes out of it and nothing else, the slots of the virtual tables, and how it is linked.

    check.py READELF COMPILE-COMMANDS DEFINITIONS CLIENT-WITHOUT-PIC LIBRARY OTHER-HARDENED-FILE...
"""

import json
import pathlib
import re
import subprocess
import sys
import tomllib

READELF, COMMANDS, DEFINITIONS, CLIENT, LIBRARY = sys.argv[1:6]
DESERIALIZE = "deserialize(zel::dataformats::data::Value const*)"
VIEW = "zel::common::types::BufferDescriptor<char const>"
VISITS = ["visitNull()", "visitBoolean(bool)", "visitInteger(int)", "visitFloat(double)",
          f"visitString({VIEW})", f"visitBlob({VIEW})",
          "visitArray(zel::common::types::PtrVector<zel::dataformats::data::Value> const&)",
          "visitObject(zel::common::types::PtrMap<std::string, zel::dataformats::data::Value> "
          "const&)"]
PLAIN = {"string": ("set", "std::string const&"), "int": ("set", "int"), "bool": ("set", "bool"),
         "double": ("set", "double"), "string list": ("add", "std::string const&"),
         "int list": ("add", "int")}
EXTERNAL = "ExternalResourceObject"
faults = []


def expect(holds, what):
    if not holds:
        faults.append(what)


def readelf(options, file):
    return subprocess.run([READELF, "--wide", options, file], check=True, capture_output=True,
                          text=True).stdout.splitlines()


def readable(symbols):
    """Symbols as people write them; constructors and destructors end in their variant."""
    text = subprocess.run(["c++filt"], input="\n".join(symbols), capture_output=True, text=True,
                          check=True).stdout
    text = text.replace("[abi:cxx11]", "").replace("zel::kiv::common::", "").replace(
        "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >",
        "std::string")
    text = re.sub(r"std::unique_ptr<([\w:]+), std::default_delete<\1> >", r"std::unique_ptr<\1>", text)
    return [f"{name} [{symbol[-4:-2]}]" if re.match(r"(.*::)?(\w+)::~?\2\(\)$", name) else name
            for name, symbol in zip(text.splitlines(), symbols)]


def raised(word):
    return word[0].upper() + word[1:]


def life(scope):
    name = scope.rsplit("::", 1)[-1]
    return {f"{scope}::~{name}() [{variant}]" for variant in ("D0", "D1", "D2")} | {
        f"{word} for {scope}" for word in ("vtable", "typeinfo", "typeinfo name")}


def made(scope):
    name = scope.rsplit("::", 1)[-1]
    return life(scope) | {f"{scope}::{name}() [C1]", f"{scope}::{name}() [C2]",
                          f"{scope}::{DESERIALIZE}"}


def accessors(key, kind, element_of):
    stem = raised(key)
    kind, targets = (kind, "external") if isinstance(kind, str) else next(iter(kind.items()))
    if kind in PLAIN:
        word, given = PLAIN[kind]
        return {f"get{stem}() const", f"is{stem}Set() const", f"{word}{stem}({given})"}
    targets = [EXTERNAL if each == "external" else element_of[each]
               for each in ([targets] if isinstance(targets, str) else targets)]
    word = "add" if kind.endswith("list") else "set"
    names = {f"get{stem}() const"} | {f"{word}{stem}(std::unique_ptr<{each}>)" for each in targets}
    if kind != "polymorphic":
        return names | {f"is{stem}Set() const"}
    return names | {"is" + "".join(map(raised, each.split("::"))) + stem + "Set() const"
                    for each in targets}


def element_names(scope, fields, element_of):
    names = {f"{scope}::serialize(SerializationType) const"} | made(scope)
    for key, kind in ({"id": "string", "name": "string", "uri": "string"} | fields).items():
        names |= {f"{scope}::{each}" for each in accessors(key, kind, element_of)}
    return names


definitions = {f"{path.parent.name}::{path.stem}": tomllib.loads(path.read_text())
               for path in pathlib.Path(DEFINITIONS).glob("*/[A-Z]*.toml")}
element_of = {scope: f"{scope}::{each['element']}" for scope, each in definitions.items()}
expected = {"ELEMENTSTATUSANDSTRINGMAP", "STRINGANDELEMENTSTATUSMAP",
            "IObjectBase::normalizeObject(zel::dataformats::data::Value&, "
            "zel::dataformats::data::Object*&)",
            "IObjectBase::getServiceAndResourceString(zel::dataformats::data::Object const&)"}
for base in "IObjectBase", "IResourceBase":
    expected |= {f"typeinfo for {base}", f"typeinfo name for {base}"}
expected |= element_names(EXTERNAL, {}, element_of) | life(EXTERNAL + "Deserializer")
expected |= {f"{EXTERNAL}Deserializer::{each}" for each in VISITS}
slots = {EXTERNAL: ["serialize(SerializationType) const", DESERIALIZE],
         EXTERNAL + "Deserializer": VISITS}
for scope, definition in definitions.items():
    element = element_of[scope]
    expected |= element_names(element, definition["fields"], element_of) | made(scope)
    expected |= {f"{scope}::{each}" for each in (
        "serialize() const", "getNumberOfElements() const", "getObjects() const",
        f"addObject(std::unique_ptr<{element}>)", "extractElement(unsigned int)")}
    slots[scope] = ["serialize() const", DESERIALIZE, "getNumberOfElements() const"]
    slots[element] = ["serialize(SerializationType) const", DESERIALIZE]

rows = [line.split() for line in readelf("--dyn-syms", LIBRARY)]
rows = [row for row in rows if len(row) == 8 and row[6] not in ("UND", "Ndx") and row[3] != "SECTION"]
symbols = dict(zip(readable([row[7] for row in rows]), rows))
# A client may derive from the two bases, so what makes them may come out.
found = {name for name in symbols if not re.match(r"I(Object|Resource)Base::~?I\w+Base\(", name)}
faults += [f"not exported: {name}" for name in sorted(expected - found)]
faults += [f"exported and should not be: {name}" for name in sorted(found - expected)]

# What stands in a slot is what the loader writes there. Long names of types are cut.
relocations = [line.split() for line in readelf("--relocs", LIBRARY)]
written = {int(row[0], 16): int(row[-1], 16) for row in relocations if len(row) == 4
           and "_RELATIV" in row[2]}
at = {}
for name, row in symbols.items():
    at.setdefault(int(row[1], 16), []).append(name)
for scope, operations in slots.items():
    table = symbols.get(f"vtable for {scope}")
    if table is None:
        continue
    first, size = int(table[1], 16), int(table[2], 0)
    there = [at.get(written.get(place), []) for place in range(first + 16, first + size, 8)]
    destructor = f"{scope}::~{scope.rsplit('::', 1)[-1]}()"
    wanted = [f"{destructor} [D1]", f"{destructor} [D0]"] + [f"{scope}::{each}" for each in operations]
    expect(len(there) == len(wanted) and all(map(list.__contains__, there, wanted)),
           f"slots of {scope}: {there}")

statics = [line.split()[-1] for line in readelf("--symbols", LIBRARY) if "_GLOBAL__sub_I_" in line]
expect(statics == ["_GLOBAL__sub_I_ElementStatus.cpp"], f"what starts by itself: {statics}")
expect(not any("_ZGV" in line for line in readelf("--symbols", LIBRARY)), "statics made at first use")
dynamic = "\n".join(readelf("--dynamic", LIBRARY))
# One address is the compiler's own, in every library.
expect(re.search(r"\(INIT_ARRAYSZ\) +16 ", dynamic), "not one static initialisation")
expect("[libzel.kiv.services.so.1]" in dynamic, "the library does not name itself by its major version")
expect("(TEXTREL)" not in dynamic, "the loader has to write into code")
named = "\n".join(" ".join(row) for row in relocations)
copies = "\n".join(line for line in readelf("--relocs", CLIENT) if "_COPY" in line)
for table in "ELEMENTSTATUSANDSTRINGMAP", "STRINGANDELEMENTSTATUSMAP":
    expect(table in named, f"{table} cannot be copied into a client")
    expect(table in copies, f"the client without position-independent code has no copy of {table}")
expect("_ZTVN3zel3kiv6common" not in named, "the library's own classes are searched for by name")

for file in sys.argv[5:]:
    expect("GNU_RELRO" in "".join(readelf("--segments", file)), f"{file}: relocations stay writable")
    expect(any("GNU_STACK" in line and " RW " in line for line in readelf("--segments", file)),
           f"{file}: executable stack")
    expect(re.search("FLAGS_1.*NOW", "\n".join(readelf("--dynamic", file))), f"{file}: bound lazily")
    expect("__stack_chk_fail" in "".join(readelf("--dyn-syms", file)), f"{file}: no stack protector")
# Fortified calls show only where a unit makes one, so the command that built each unit is read.
units = [each["command"] for each in json.loads(pathlib.Path(COMMANDS).read_text())
         if re.search(r"/frame/[\w/]+\.cpp$|/generated/services/", each["file"])]
expect(len(units) > len(definitions), "the commands of the units are not known")
expect(all("-D_FORTIFY_SOURCE=2" in each and "-fstack-protector-strong" in each for each in units),
       "a unit is not fortified")

print("\n".join(faults))
sys.exit(1 if faults else 0)
