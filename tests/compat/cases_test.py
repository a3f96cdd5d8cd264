"""kiv compat finds what cases.txt says, and each of its rules is found there; the file of a release
holds all that is in the definitions.
cases_test.py KIV..."""
import json, pathlib, subprocess, sys, tempfile

here = pathlib.Path(__file__).parent
kiv = sys.argv[1:]
base = (here / "base.release").read_text()
nextVersions = {"patch": "1.4.3", "minor": "1.5.0", "major": "2.0.0"}


def compat(*arguments):
    run = subprocess.run([*kiv, "compat", *arguments], capture_output=True, text=True)
    return run.returncode, json.loads(run.stdout) if run.stdout else run.stderr


def edited(lines):
    text, goes = base, None
    for mark, rest in ((line[0], line[2:] + "\n") for line in lines if line[0] in "-+~"):
        if mark == "~":
            old, new = rest.rstrip("\n").split(" => ")
            text = text.replace(old, new)
        elif mark == "-":
            assert rest in text, rest
            start = text.index("\n" + rest) + 1
            text, goes = text[:start] + text[start + len(rest):], start
        else:
            text, goes = text[:goes] + rest + text[goes:], goes + len(rest)
    return text


def check(lines, folder, steps):
    sides = [base, edited(lines)]
    for name, text in zip("ab", reversed(sides) if lines[0] == "<" else sides):
        (folder / name).write_text(text)
    code, report = compat(str(folder / "a"), str(folder / "b"), "--json")
    if code == 2:
        return [report]
    found = [f"= {each['rule']} | {', '.join(each['breaks']) or 'nothing'} | "
             f"{each['subject']}: {each['what']}" for each in report["changes"]]
    wanted = [line for line in lines if line[0] == "="]
    wrong = [] if found == wanted else found
    if code != any("nothing" not in line.split(" | ")[1] for line in wanted):
        wrong.append(f"exit code {code}")
    step = max((steps[each["rule"]] for each in report["changes"]), key=list(nextVersions).index)
    if report["next"] != nextVersions[step]:
        wrong.append(f"the next version is {report['next']}")
    return wrong


steps = {rule["rule"]: rule["step"] for rule in compat("--rules", "--json")[1]}
blocks = [[line for line in block.split("\n") if line and line[0] != "#"]
          for block in (here / "cases.txt").read_text().split("\n\n")]
blocks = [block for block in blocks if block]
failed = False
with tempfile.TemporaryDirectory() as folder:
    for block in blocks:
        if wrong := check(block, pathlib.Path(folder), steps):
            print("\n".join([*block, "but found:", *wrong, ""]))
            failed = True
    release = pathlib.Path(folder) / "release"
    for side in (here.parents[1] / "services", here / "base.release"):
        command = [*kiv, "compat", "--snapshot", side, "--release", "1.0.0"]
        release.write_text(subprocess.run(command, capture_output=True, text=True, check=True).stdout)
        code, report = compat(release, side, "--json")
        failed |= code != 0 or report["changes"] != []
shown = {line.split(" ")[1] for block in blocks for line in block if line[0] == "="}
if shown != set(steps):
    print("rules without a case, cases without a rule:", shown ^ set(steps))
    failed = True
sys.exit(failed)
