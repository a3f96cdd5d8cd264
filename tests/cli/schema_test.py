"""Holds the schemas of kiv against an existing validator.

They must take every sample, and of documents that were bent refuse just those in which `kiv check`
finds something lost, changed or invented: both tell what the library does, each in its own way.

    schema_test.py KIV CASES
"""

import copy
import json
import pathlib
import random
import subprocess
import sys

from jsonschema import Draft202012Validator

KIV, CASES = sys.argv[1], pathlib.Path(sys.argv[2])
BENT_EACH = 6
STRAY = [None, True, 7, 1.5, 2147483648.5, "text", "", "/radio/stations/7", "/places/locations/1",
         "/a/b/c", "/a/b", "/a/b/", [], [None], ["/a/b/c"], [7, None], {}, {"unknown": 1},
         {"uri": 5}, {"uri": None}, {"uri": "/a/b"}, {"uri": "/a/b/c", "id": "c"},
         {"uri": "/radio/stations/7", "frequency": 7}, {"uri": "/radio/stations/7", "bands": []}]
# What chance seldom makes.
RARE = {"radio/stations": [{"images": []}, {"images": [None]}, {"images": [None, "a"]},
                           {"bands": [None]}],
        "radio/listiterators": [{"nextItem": "/radio/bands/1"}, {"nextItem": "/radio/stations/1"},
                                {"nextItem": {"uri": "/radio/bands/1"}}]}
faults = []


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
    elif isinstance(holder, dict) and chance.random() < 0.2:
        holder[key + "s"] = holder.pop(key)
    else:
        holder[key] = copy.deepcopy(chance.choice(STRAY))


def entries_found(resource, text, fates):
    found = kiv("check", resource, "-", "--json", given=text)
    return {int(each["path"][1:].split("]")[0]) for each in found if each["fate"] in fates}


def compare(resource, validator, text, exactly):
    entries = json.loads(text)
    refused = {i for i, entry in enumerate(entries) if not validator.is_valid([entry])}
    losing = entries_found(resource, text, {"lost", "changed", "invented", "error"})
    suspect = set() if exactly else entries_found(resource, text, {"suspect"})
    for i in sorted(losing - refused) + sorted(refused - losing - suspect):
        word = "lets pass" if i in losing else "refuses"
        faults.append(f"{resource}: the schema {word} {json.dumps(entries[i])[:2000]}")


def main():
    chance = random.Random(20260115)
    interface = kiv("schema")
    Draft202012Validator.check_schema(interface)
    names = subprocess.run([KIV, "list", "--names"], capture_output=True, text=True).stdout.split()
    if len(names) < 100:
        sys.exit("kiv list --names gives too few names")
    for resource in names:
        schema = kiv("schema", resource)
        document = interface["$defs"][resource.replace("/", ".") + ".document"]
        if any(interface["$defs"].get(key) != each for key, each in schema["$defs"].items()) or any(
                schema[key] != each for key, each in document.items()):
            faults.append(f"{resource}: its own schema is another than that of the interface")
        for reference in references(schema):
            if reference.removeprefix("#/$defs/") not in schema["$defs"]:
                faults.append(f"{resource}: {reference} leads nowhere")
        validator = Draft202012Validator(schema)
        sample = kiv("sample", resource)
        faults.extend(f"{resource}: {error.json_path}: {error.message[:500]}"
                      for error in validator.iter_errors(sample))
        bent = [copy.deepcopy(sample[0]) for _ in range(BENT_EACH)]
        for element in bent:
            bend(element, chance)
        bent += [None, 7, "/a/b/c", []]
        compare(resource, validator, json.dumps(bent), exactly=True)
        if schema["description"] == "":
            faults.append(f"{resource}: the schema does not say what it is for")

    for resource, name in [("gearbox/transmissions", "bent"), ("radio/presets", "suspect")]:
        text = (CASES / "check" / f"{name}.json").read_text()
        compare(resource, Draft202012Validator(kiv("schema", resource)), text, exactly=False)

    for resource, entries in RARE.items():
        validator = Draft202012Validator(kiv("schema", resource))
        compare(resource, validator, json.dumps(entries), exactly=True)

    presets = Draft202012Validator(kiv("schema", "radio/presets"))
    if presets.is_valid([{"position": 2**31}]) or presets.is_valid([{"station": "radio/stations/7"}]):
        faults.append("radio/presets: an integer of 33 bits or a uri without its slash passes")
    if presets.is_valid({"position": 1}):
        faults.append("radio/presets: an element without its array passes")


main()
print("\n".join(faults))
sys.exit(1 if faults else 0)
