"""Holds `kiv check` and the schemas against the library, over samples and documents that were bent.

`check` must find something lost, changed or invented in an entry if and only if what `kiv convert`
makes of it differs, and each finding's place must be real. The schemas, read by an existing
validator, must refuse just the entries in which `check` finds that.

    documents_test.py KIV CASES
"""

import copy
import json
import pathlib
import random
import subprocess
import sys

from jsonschema import Draft202012Validator

KIV, CASES = sys.argv[1], pathlib.Path(sys.argv[2])
BENT_EACH = 12
STRAY = [None, True, 0, 7, -7.5, 4.0, 1e12, 2147483648.5, "", "12", "text", "/radio/stations/7",
         "/places/locations/1", "radio/stations/7", "/a/b/c", "/a/b", "/a/b/", [], [None],
         ["/a/b/c"], [7, None, "a"], {}, {"unknown": 1}, {"uri": 5}, {"uri": None},
         {"uri": "/a/b"}, {"uri": "/a/b/c", "id": "c"}, {"id": "7"},
         {"uri": "/radio/stations/7", "frequency": 7}, {"uri": "/radio/stations/7", "bands": []}]
# What chance seldom makes.
RARE = {"radio/stations": [{"images": []}, {"images": [None]}, {"images": [None, "a"]},
                           {"bands": [None]}],
        "radio/listiterators": [{"nextItem": "/radio/bands/1"}, {"nextItem": "/radio/stations/1"},
                                {"nextItem": {"uri": "/radio/bands/1"}}]}
LOSING = {"lost", "changed", "invented"}
faults = []
count = {"clean": 0, "bent": 0}


def kiv(*words, given=""):
    done = subprocess.run([KIV, *words], input=given, capture_output=True, text=True)
    if done.returncode > 1 or done.stderr:
        sys.exit(f"kiv {' '.join(words)}: {done.stderr}")
    return json.loads(done.stdout)


def references(schema):
    if isinstance(schema, dict):
        if isinstance(schema.get("$ref"), str):
            yield schema["$ref"]
        schema = schema.values()
    if not isinstance(schema, str) and hasattr(schema, "__iter__"):
        for part in schema:
            yield from references(part)


def places(value, holder=None, key=None):
    """Every place in a value, as what holds it and under which key or index."""
    if holder is not None:
        yield holder, key
    steps = value.items() if isinstance(value, dict) else enumerate(value)
    for step, part in list(steps):
        if isinstance(part, (dict, list)):
            yield from places(part, value, step)
        else:
            yield value, step


def bend(element, chance):
    holder, key = chance.choice(list(places(element)))
    if isinstance(holder, dict) and chance.random() < 0.2:
        del holder[key]
    elif isinstance(holder, dict) and chance.random() < 0.2 and holder[key] is not None:
        holder[key + "s"] = holder.pop(key)
    else:
        holder[key] = copy.deepcopy(chance.choice(STRAY))


def written_out(uri):
    """The element that a uri stands for."""
    parts = uri.removeprefix("/").split("/")
    return {"uri": uri} | ({"id": parts[2]} if len(parts) > 2 and parts[2] else {})


def is_kept(given, full):
    """Whether the full form says the same as what was given, in which nulls do not count."""
    if isinstance(given, dict) and isinstance(full, dict):
        given = {key: value for key, value in given.items() if value is not None}
        return given.keys() == full.keys() and all(is_kept(given[key], full[key]) for key in full)
    if isinstance(given, list) and isinstance(full, list):
        given = [value for value in given if value is not None]
        return len(given) == len(full) and all(map(is_kept, given, full))
    if isinstance(given, str) and isinstance(full, dict):
        return written_out(given) == full
    return isinstance(given, bool) == isinstance(full, bool) and given == full


def is_real(lines, finding):
    """Whether the place shows the key that the path ends with, or the beginning of a value."""
    there = lines[finding["line"] - 1][finding["column"] - 1:]
    if finding["stands"].startswith("no key"):
        return there.startswith(json.dumps(finding["path"].rsplit(".", 1)[1]))
    return there != "" and there[0] in '"-0123456789[{tfn'


def checked(resource, text):
    """The fates found in each entry."""
    fates = {}
    for finding in kiv("check", resource, "-", "--json", given=text):
        index = int(finding["path"][1:].split("]")[0])
        fates.setdefault(index, set()).add(finding["fate"])
        if not is_real(text.split("\n"), finding):
            faults.append(f"{resource}: there is no such place: {finding} in {text[:2000]}")
    return fates


def compare(resource, validator, entries, lenient=False):
    """`lenient` where a schema may refuse what is merely suspect."""
    text = json.dumps(entries, indent=random.choice([None, 1]), ensure_ascii=False)
    fates = checked(resource, text)
    allowed = [i for i in range(len(entries)) if "error" not in fates.get(i, ())]
    given = [entries[i] for i in allowed]
    full = dict(zip(allowed, kiv("convert", resource, "-", given=json.dumps(given))))
    for i, entry in enumerate(entries):
        found = fates.get(i, set())
        losing = bool(found & LOSING)
        shown = json.dumps(entry)[:2000]
        if i in full and losing == is_kept(entry, full[i]):
            faults.append(f"{resource}: check finds {sorted(found)} in {shown}")
        valid = validator.is_valid([entry])
        if valid == (losing or "error" in found) and not (lenient and "suspect" in found):
            faults.append(f"{resource}: the schema {'takes' if valid else 'refuses'} {shown}")
        count["bent" if losing else "clean"] += 1


def main():
    chance = random.Random(20260115)
    random.seed(1)
    interface = kiv("schema")
    Draft202012Validator.check_schema(interface)
    names = subprocess.run([KIV, "list", "--names"], capture_output=True, text=True).stdout.split()
    for resource in names:
        schema = kiv("schema", resource)
        document = interface["$defs"][resource.replace("/", ".") + ".document"]
        if any(interface["$defs"].get(key) != each for key, each in schema["$defs"].items()) or any(
                schema[key] != each for key, each in document.items()):
            faults.append(f"{resource}: its own schema is another than that of the interface")
        for reference in references(schema):
            if reference.removeprefix("#/$defs/") not in schema["$defs"]:
                faults.append(f"{resource}: {reference} leads nowhere")
        if schema["description"] == "":
            faults.append(f"{resource}: the schema does not say what it is for")
        validator = Draft202012Validator(schema)
        samples = [kiv("sample", resource, "--depth", depth)[0] for depth in "01"]
        for sample in samples:
            faults.extend(f"{resource}: {error.json_path}: {error.message[:500]}"
                          for error in validator.iter_errors([sample]))
            if sample.keys() != schema["$defs"][resource.replace("/", ".")]["properties"].keys():
                faults.append(f"{resource}: its sample is not whole")
        if checked(resource, json.dumps(samples)):
            faults.append(f"{resource}: its sample is not clean")
        bent = [copy.deepcopy(samples[i % 4 == 0]) for i in range(BENT_EACH)]
        for i, element in enumerate(bent):
            for _ in range(1 + i % 2):
                bend(element, chance)
        compare(resource, validator, bent + [None, 7, "/a/b/c", []] + RARE.get(resource, []))

    for resource, name in [("gearbox/transmissions", "bent"), ("radio/presets", "suspect")]:
        entries = json.loads((CASES / "check" / f"{name}.json").read_text())
        compare(resource, Draft202012Validator(kiv("schema", resource)), entries, lenient=True)

    presets = Draft202012Validator(kiv("schema", "radio/presets"))
    if presets.is_valid([{"position": 2**31}]) or presets.is_valid([{"station": "radio/stations/7"}]):
        faults.append("radio/presets: an integer of 33 bits or a uri without its slash passes")
    if presets.is_valid({"position": 1}):
        faults.append("radio/presets: an element without its array passes")
    if min(count.values()) < 500:
        faults.append(f"too few documents of one sort: {count}")


main()
print("\n".join(faults))
sys.exit(1 if faults else 0)
