#!/usr/bin/env python3
"""Writes the text-data resources (type 260) of the reference host's txk_basic library.

Text data is stored in a multi-byte code page and converted to UTF-16 by the reader in a code
page that it names. The same Russian notice is written twice, in Windows-1251 and in KOI8-R, so
that reading each in its own code page gives the same text; the English notice is plain ASCII.

Run from anywhere: python3 tools/encode_texts.py.
"""

import pathlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
TEXTS = ROOT / "host" / "basic" / "resources" / "texts"

NOTICE_RU = "Общие ресурсы Тарвекс. Ёж, ёлка!"
NOTICE_EN = "Tarvex shared resources."

FILES = {
    "notice_ru.cp1251.txt": (NOTICE_RU, "cp1251"),
    "notice_en.cp1251.txt": (NOTICE_EN, "cp1251"),
    "notice_ru.koi8r.txt": (NOTICE_RU, "koi8_r"),
}


def main():
    TEXTS.mkdir(parents=True, exist_ok=True)
    for name, (text, encoding) in FILES.items():
        path = TEXTS / name
        path.write_bytes(text.encode(encoding))
        print(f"{path.relative_to(ROOT)}: {encoding}")


if __name__ == "__main__":
    main()
