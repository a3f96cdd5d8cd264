"""What the public headers say: in those of the services each text of the definitions stands where it
belongs, and no class of the others is without a comment.   comments.py SOURCES SERVICES GENERATED"""
import pathlib, re, sys, tomllib

sources, services, generated = map(pathlib.Path, sys.argv[1:])
missing = []


def look(header, what, pattern, text):
    if not re.search(pattern, text, re.MULTILINE):
        missing.append(f"{header}: {what}")


for definition in sorted(services.glob("*/[A-Z]*.toml")):
    rows = tomllib.loads(definition.read_text())
    header = generated / "services" / definition.parent.name / f"{definition.stem}.h"
    text = re.sub(r"(?<=\S)\n */// ", " ", header.read_text())  # each comment in a line
    look(header, "what the element is", re.escape(rows["about"]) + r"\nclass .*" + rows["element"], text)
    for key, note in rows.get("notes", {}).items():
        look(header, f"the note on {key}", rf"^ */// `{key}`: .*{re.escape(note)}.*\n[^/]* get", text)
kinds = r"(?:template.*\n)?(?:class|struct|enum)\b"
for header in (each for room in ("frame", "values", "testing") for each in sources.glob(f"{room}/*.h")):
    text = header.read_text()
    for name in re.findall(rf"^{kinds}[^;\n]*?(\w+)(?: final)?(?: :.*)?\s*\{{", text, re.MULTILINE):
        look(header, name, rf"^///.*\n{kinds}.*\b{name}\b", text)

print("\n".join(missing))
sys.exit(1 if missing else 0)
