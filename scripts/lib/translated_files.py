#!/usr/bin/env python3
"""The texts of the desktop file, the metainfo and the manual: to the catalogues, and back from them.

translated_files.py extract               prints them as lupdate reads them
translated_files.py write FOLDER [ROOT]   has the files of ROOT say what the catalogues in FOLDER say

Their English is in the files themselves. What is complete in translations/complete is written, nothing else.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

IDENTIFIER = "com.kestrone.Vantor"
DESKTOP_KEYS = ("GenericName", "Comment", "Keywords", "Name")
ELEMENTS = "summary|p|li|caption"
# What divides a manual into its texts: titles, paragraphs, lists. All other macros stand within texts.
STRUCTURE = re.compile(r"\.(Dd|Dt|Os|Sh|Nd|Pp|Bl|It|El)\b")


def desktop_texts(lines):
    """The texts of a desktop file, by the number of their line."""
    for number, line in enumerate(lines):
        key, _, value = line.partition("=")
        # The product's name is one in all languages.
        if key in DESKTOP_KEYS and value != "Vantor":
            yield number, key, value


def metainfo_texts(document):
    for found in re.finditer(rf"<({ELEMENTS})>(.*?)</\1>", document, re.DOTALL):
        yield found, found[1], " ".join(found[2].split())


def manual_parts(lines):
    """The manual in order: (macro, text), where either may be empty; texts keep their lines."""
    text = []
    for line in lines:
        if not STRUCTURE.match(line):
            text.append(line)
            continue
        if text:
            yield "", "\n".join(text)
        text = []
        macro, _, title = line.partition(" ")
        yield (macro + " ", title) if macro in (".Sh", ".Nd") else (line, "")
    if text:
        yield "", "\n".join(text)


class Files:
    def __init__(self, root):
        self.folder = pathlib.Path(root) / "packaging" / "linux"
        self.desktop = self.folder / f"{IDENTIFIER}.desktop"
        self.metainfo = self.folder / f"{IDENTIFIER}.metainfo.xml"
        self.manual = self.folder / "vantor.1"

    def read_desktop(self):
        """Its lines without the translated ones."""
        return [line for line in self.desktop.read_text().splitlines() if not re.match(r"\w+\[", line)]

    def read_metainfo(self):
        return re.sub(rf'\n *<({ELEMENTS}) xml:lang="[^"]*">.*?</\1>', "", self.metainfo.read_text(), flags=re.DOTALL)

    def read_manual(self):
        return self.manual.read_text().splitlines()

    def texts(self):
        """All texts: (context, what a translator must know, text)."""
        for _, key, value in desktop_texts(self.read_desktop()):
            hint = {
                "Keywords": "words that are searched for; each ends with a semicolon, and the English ones are found anyway",
                "Name": "a command in the menu of the program's icon",
                "GenericName": "the kind of program",
            }
            yield "DesktopFile", hint.get(key, "what the program is for"), value
        for _, element, text in metainfo_texts(self.read_metainfo()):
            hint = {"summary": "what the program is for", "caption": "under a picture", "li": "in a list"}
            yield "SoftwareCentre", hint.get(element, "a paragraph"), text
        for macro, text in manual_parts(self.read_manual()):
            if text:
                hint = "the title of a section" if macro == ".Sh " else "lines that begin with a dot are macros"
                yield "Manual", hint, text

    def write(self, catalogues):
        self.write_desktop(catalogues)
        self.write_metainfo(catalogues)
        self.write_manuals(catalogues)

    def write_desktop(self, catalogues):
        lines = self.read_desktop()
        for number, key, value in desktop_texts(lines):
            for language, texts in catalogues:
                lines[number] += f"\n{key}[{language}]={texts['DesktopFile', value]}"
        self.desktop.write_text("\n".join(lines) + "\n")

    def write_metainfo(self, catalogues):
        document = self.read_metainfo()
        for found, element, text in reversed(list(metainfo_texts(document))):
            indent = document[document.rfind("\n", 0, found.start()) + 1 : found.start()]
            added = ""
            for language, texts in catalogues:
                translated = texts["SoftwareCentre", text].replace("&", "&amp;").replace("<", "&lt;")
                added += f'\n{indent}<{element} xml:lang="{language}">{translated}</{element}>'
            document = document[: found.end()] + added + document[found.end() :]
        self.metainfo.write_text(document)

    def write_manuals(self, catalogues):
        for old in self.folder.glob("manuals/*.1"):
            old.unlink()
        for language, texts in catalogues:
            parts = [macro + (text and texts["Manual", text]) for macro, text in manual_parts(self.read_manual())]
            (self.folder / "manuals").mkdir(exist_ok=True)
            (self.folder / "manuals" / f"vantor.{language}.1").write_text("\n".join(parts) + "\n")


def literal(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def extract(files):
    seen = set()
    for context, hint, text in files.texts():
        if (context, text) not in seen:
            print(f'//: {hint}\nQT_TRANSLATE_NOOP("{context}", {literal(text)})')
        seen.add((context, text))


def catalogue(path):
    texts = {}
    for context in xml.etree.ElementTree.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            texts[context.findtext("name"), message.findtext("source")] = message.findtext("translation")
    return texts


def complete_catalogues(folder):
    listed = (pathlib.Path(folder) / "complete").read_text().split("\n")
    languages = [line.strip() for line in listed if line.strip() and not line.startswith("#")]
    return [(language, catalogue(pathlib.Path(folder) / f"vantor_{language}.ts")) for language in sorted(languages)]


def main():
    root = pathlib.Path(__file__).resolve().parents[2]
    if sys.argv[1:] == ["extract"]:
        extract(Files(root))
    elif sys.argv[1:2] == ["write"] and len(sys.argv) in (3, 4):
        Files(sys.argv[3] if len(sys.argv) == 4 else root).write(complete_catalogues(sys.argv[2]))
    else:
        sys.exit(__doc__)


main()
