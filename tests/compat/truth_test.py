"""Whether kiv compat is right: a small interface is changed at random, each state of it is built, and
what other means find of the difference is held against the verdict. For binary that is abidiff; for
wire, documents of the old side, which both sides must write again alike.

truth_test.py WORK-FOLDER, the rest in the environment (see CMakeLists.txt). Prints each round, and
what did not agree."""
import concurrent.futures, json, os, pathlib, random, shutil, subprocess, sys

work = pathlib.Path(sys.argv[1])
rounds, seed = (int(os.environ.get("ZEL_KIV_" + name, "2")) for name in ("ROUNDS", "SEED"))
source, kivgen, kiv = (os.environ[name] for name in ("SOURCE", "KIVGEN", "KIV"))
compiler, frame, tool, platform = (
    os.environ[name].split() for name in ("CXX", "FRAME", "TOOL", "PLATFORM"))
dice = random.Random(seed)
scalars = ["string", "int", "double", "bool", "string list", "int list", "external",
           "external list"]


def startingInterface():
    return {"Bands": {"element": "BandObject", "fields": {}},
            "Presets": {"element": "PresetObject", "fields": {
                "band": ["element", "Bands"], "image": "external", "position": "int",
                "station": ["polymorphic", "Stations", "external"],
                "stations": ["element_list", "Stations"]}},
            "Stations": {"element": "StationObject", "fields": {
                "frequency": "int", "genres": "string list", "next": ["polymorphic", "Bands",
                "Stations"], "text": "string", "weight": "double"}}}


def spelt(kind):
    named = [name if name == "external" else "radio::" + name for name in kind[1:]]
    return (json.dumps(kind) if isinstance(kind, str) else "{ polymorphic = %s }" % json.dumps(named)
            if kind[0] == "polymorphic" else '{ %s = "%s" }' % (kind[0], named[0]))


def write(interface, folder):
    service = folder / "services" / "radio"
    service.mkdir(parents=True)
    (service / "service.toml").write_text('about = "Radio."\ngroup = "system"\n')
    for name, resource in interface.items():
        rows = [f'{key} = "{text}"' for key, text in resource.items() if key != "fields"]
        rows += ['about = "It."', "[fields]"]
        rows += [f"{key} = {spelt(kind)}" for key, kind in sorted(resource["fields"].items())]
        (service / (name + ".toml")).write_text("\n".join(rows) + "\n")
    return folder / "services"


def randomKind(interface):
    names = list(interface)
    few = dice.sample(names + ["external"], dice.randint(2, min(3, len(names))))
    return dice.choice([dice.choice(scalars), ["element", dice.choice(names)],
                        ["element_list", dice.choice(names)], ["polymorphic", *few]])


def renamed(interface, old, new):
    def follow(kind):
        return kind if isinstance(kind, str) else [kind[0]] + [
            new if name == old else name for name in kind[1:]]
    for resource in interface.values():
        resource["fields"] = {key: follow(kind) for key, kind in resource["fields"].items()}
    return {new if name == old else name: body for name, body in interface.items()}


def change(interface):
    """One change of any sort; the result may be no interface that the generator takes."""
    interface = json.loads(json.dumps(interface))
    name = dice.choice(list(interface))
    fields = interface[name]["fields"]
    word = dice.choice(["Alpha", "Beta", "Gamma", "Delta", "Omega"])
    sort = dice.choice(["add", "kind", "kind", "field", "targets", "targets", "class", "resource"])
    key = dice.choice(list(fields) or ["none"])
    if sort == "add":
        fields[word.lower()] = randomKind(interface)
    elif sort == "field" and fields:
        kind = fields.pop(key)
        if dice.random() < 0.5:
            fields[key + word] = kind
    elif sort == "kind" and fields:
        fields[key] = randomKind(interface)
    elif sort == "targets":
        for resource in interface.values():
            for key, kind in resource["fields"].items():
                if kind[0] == "polymorphic" and dice.random() < 0.7:
                    others = [*interface, "external"]
                    targets = kind[1:] if dice.random() < 0.6 else dice.sample(others, 2)
                    dice.shuffle(targets)
                    resource["fields"][key] = ["polymorphic", *targets]
    elif sort == "class":
        what = dice.choice(["element", "resource_key", "element_key"])
        interface[name][what] = word + "Object" if what == "element" else word.lower() + "s"
    elif sort == "resource" and dice.random() < 0.5:
        interface[word + "s"] = {"element": word + "Object", "fields": dict(
            list(fields.items())[:dice.randint(0, 4)])}
    elif sort == "resource" and dice.random() < 0.5:
        interface = renamed(interface, name, word + "s")
        if dice.random() < 0.5:
            interface[word + "s"].setdefault("resource_key", name[0].lower() + name[1:])
    elif sort == "resource":
        del interface[name]
    return interface


def nextInterface(interface, folder):
    for attempt in range(1000):
        changed = interface
        for _ in range(dice.choice([1, 1, 2])):
            changed = change(changed)
        services = write(changed, folder / f"try{attempt}")
        if changed != interface and not subprocess.run([kivgen, services],
                                                       capture_output=True).returncode:
            return changed, services
    sys.exit("no change that the generator takes")


def run(command):
    subprocess.run(command, check=True)


def build(services, folder):
    """The library, with what abidiff reads, and a kiv over it."""
    generated = folder / "generated"
    run([kivgen, services, generated])

    def compiled(unit):
        target = generated / (str(unit.parent.name) + unit.stem + ".o")
        run([*compiler, "-g", "-O0", "-fPIC", "-fvisibility=hidden", "-std=c++20", f"-I{source}",
             f"-I{generated}", "-c", unit, "-o", target])
        return target
    services = list(generated.glob("services/*/*.cpp"))
    others = [*generated.glob("catalogue/*.cpp"), *pathlib.Path(source).glob("catalogue/*.cpp")]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        objects = list(pool.map(compiled, services + others))
    library, kivHere = folder / "libzel.kiv.services.so", folder / "kiv"
    paths = ":".join([str(folder), *(str(pathlib.Path(each).parent) for each in platform)])
    exports = next(pathlib.Path(source).glob("*/exports.map"))
    run([*compiler, "-shared", f"-Wl,-rpath,{paths},--version-script={exports}", "-o", library,
         *objects[:len(services)], *frame, *platform])
    # kiv holds the classes itself, with the frame that tells.
    run([*compiler, f"-Wl,-rpath,{paths}", "-o", kivHere, "-Wl,--start-group", *tool, *objects,
         "-Wl,--end-group", *platform])
    return library, kivHere


def keyOf(interface, name):
    return interface[name].get("resource_key", name[0].lower() + name[1:])


def documents(was, now):
    """Elements of the old interface that its library carries in full: for each resource some with
    every field set, over all targets."""
    uris = {f"/radio/{keyOf(side, name)}" for side in (was, now) for name in side} | {"/else/where"}

    def element(name, turn, depth, uri=None):
        fields = {} if name == "external" else was[name]["fields"]
        tree = {key: value(kind, turn, depth) for key, kind in fields.items()} if depth else {}
        common = {"id": "i", "name": "n", "uri": uri or "/a/b/c"}
        return tree | (common if uri or turn % 2 else {})

    def value(kind, turn, depth):
        if kind[0] == "polymorphic":
            target = kind[1 + turn % (len(kind) - 1)]
            own = {f"/radio/{keyOf(was, name)}" for name in kind[1:] if name != "external"}
            free = sorted(uris - own) if target == "external" else [f"/radio/{keyOf(was, target)}"]
            return element(target, turn, depth - 1, free[turn % len(free)] + "/7")
        if not isinstance(kind, str):
            one = element(kind[1], turn, depth - 1)
            return one if kind[0] == "element" else [one, element(kind[1], turn + 1, depth - 1)]
        one = {"string": "a text", "int": 7, "double": 1.5, "bool": turn % 2 == 0,
               "external": element("external", turn, 0)}[kind.split(" ")[0]]
        return [one, one] if kind.endswith("list") else one
    return {name: [element(name, turn, 4) for turn in range(7)] for name in was}


def breaksWire(was, now, oldKiv, newKiv, folder):
    for name, document in documents(was, now).items():
        file = folder / "document.json"
        file.write_text(json.dumps(document))
        texts = [subprocess.run([each, "convert", f"radio/{keyOf(was, name)}", file],
                                capture_output=True, text=True) for each in (oldKiv, newKiv)]
        assert json.loads(texts[0].stdout) == document, (name, document, texts[0])
        if texts[0].stdout != texts[1].stdout:
            return True
    return False


def breaksBinary(oldLibrary, newLibrary):
    report = subprocess.run(["abidiff", "--no-added-syms", oldLibrary, newLibrary],
                            capture_output=True, text=True)
    assert not report.returncode & 3, report.stdout + report.stderr
    return report.returncode != 0


shutil.rmtree(work, ignore_errors=True)
interface = startingInterface()
services = write(interface, work / "0")
library, builtKiv = build(services, work / "0")
wrong = 0
for number in range(1, rounds + 1):
    folder = work / str(number)
    changed, changedServices = nextInterface(interface, folder)
    changedLibrary, changedKiv = build(changedServices, folder)
    report = json.loads(subprocess.run([kiv, "compat", services, changedServices, "--json"],
                                       capture_output=True, text=True, check=False).stdout)
    said = {word for each in report["changes"] for word in each["breaks"]}
    rules = sorted({each["rule"] for each in report["changes"]})
    wire = breaksWire(interface, changed, builtKiv, changedKiv, folder)
    binary = breaksBinary(library, changedLibrary)
    # Flags that change places move within the element, which abidiff tells of; no client can see it.
    isMoved = binary and "binary" not in said and "choices-reordered" in rules
    agrees = wire == ("wire" in said) and (binary == ("binary" in said) or isMoved)
    wrong += not agrees
    print(number, "agrees" if agrees else "DIFFERS", "(moved)" if isMoved else "", f"{wire=}",
          f"{binary=}", "said:", *sorted(said), "for", *rules, flush=True)
    interface, services, library, builtKiv = changed, changedServices, changedLibrary, changedKiv
print(f"{rounds} rounds with seed {seed}, {wrong} differ")
sys.exit(wrong > 0)
