#!/usr/bin/env python3
"""Validates JSON documents of every message with a validator of another house (python3-jsonschema).

    check_schema.py PROGRAM OUTPUT

PROGRAM is krm_exchange_documents, which writes the schema and the documents to OUTPUT.
"""

import copy
import json
import subprocess
import sys

import jsonschema

MESSAGES = 158


def main():
    program, output = sys.argv[1:]
    subprocess.run([program, output], check=True)
    with open(output, encoding="utf-8") as file:
        schema, *documents = [json.loads(line) for line in file]
    jsonschema.Draft202012Validator.check_schema(schema)
    whole = jsonschema.Draft202012Validator(schema)

    # Trying all alternatives for every document takes minutes: one document of each class does, the others are tried with
    # the alternative of their class, and so is what must be found wrong.
    alternatives = {}
    for alternative in schema["oneOf"]:
        says = alternative["properties"]
        key = tuple(says[name]["const"] for name in ("command", "family", "direction"))
        alternatives[key] = jsonschema.Draft202012Validator({**alternative, "$defs": schema["$defs"]})
    faults, seen, refused = [], set(), 0
    for document in documents:
        key = tuple(document[name] for name in ("command", "family", "direction"))
        for error in alternatives[key].iter_errors(document):
            faults.append(f"{key}: {error.json_path}: {error.message[:200]}")
        if key in seen:
            continue
        seen.add(key)
        if not whole.is_valid(document):
            faults.append(f"{key}: not valid by the whole schema")
        for name in [None, *document["content"]]:
            wrong = copy.deepcopy(document)
            wrong["content"][name or "m_Unknown"] = None
            if alternatives[key].is_valid(wrong):
                faults.append(f"{key}: null is taken for {name or 'an unknown member'}")
            refused += 1
    if len(alternatives) != MESSAGES or seen != set(alternatives):
        faults.append(f"{len(alternatives)} messages in the schema, {len(seen)} in the documents, not {MESSAGES}")
    for fault in faults:
        print(fault)
    print(f"{len(documents)} documents valid, {refused} wrong ones refused, {len(faults)} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
