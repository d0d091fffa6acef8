#!/usr/bin/env python3
"""Makes what goes into a release beside the binaries: licences, archives, the list of what is inside.

    release.py copyright FILE                  the licences of what Debian's packages hold
    release.py documents PLATFORM FOLDER       licences and documentation, into the staged tree of an archive
    release.py archive FOLDER FILE             FOLDER as .tar.gz or .zip
    release.py version                         the version of krm
    release.py sbom FILE ARTEFACT...           SPDX 2.3: what each artefact holds, file by file, and what is inside

PLATFORM is linux or windows. What is written depends on the input alone, and on SOURCE_DATE_EPOCH.
"""

import gzip
import hashlib
import io
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tarfile
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
# The one place that says how krm itself is licensed; everything else copies it.
LICENCE = ROOT / "packaging/licence.txt"
DOCUMENTS = ["README.md", "CHANGELOG.md", "SECURITY.md", *(f"docs/{name}.md" for name in (
    "debugging", "exchange", "install", "interface", "krm", "platforms", "viewer"))]

# What is inside that is not krm's own. `package` is the Debian package that it comes from, with its copyright file.
PARTS = {
    "RapidJSON": {
        "package": "rapidjson-dev", "licence": "MIT AND BSD-3-Clause", "platforms": ["linux", "windows"],
        "where": "compiled into krmc_exchange and krm"},
    "CLI11": {
        "package": "libcli11-dev", "licence": "BSD-3-Clause", "platforms": ["linux", "windows"],
        "where": "compiled into krm"},
    "zlib": {
        "package": "libz-mingw-w64-dev", "licence": "Zlib", "platforms": ["windows"], "where": "linked into krm.exe"},
    "GCC runtime libraries": {
        "package": "gcc-mingw-w64-{machine}-posix-runtime", "licence": "GPL-3.0-or-later WITH GCC-exception-3.1",
        "platforms": ["windows"],
        "where": "libstdc++-6.dll, libgcc_s_dw2-1.dll (32 bits), libgcc_s_seh-1.dll (64 bits); libssp, linked into every "
                 "DLL and program"},
    "MinGW-w64 runtime": {
        "package": "mingw-w64-{machine}-dev", "licence": "ZPL-2.1 AND MIT AND BSD-3-Clause", "platforms": ["windows"],
        "where": "libwinpthread-1.dll; what starts a program, linked into every DLL and program"},
}
# What the Linux binaries load of the system's.
LOADED = {"libc6": "LGPL-2.1-or-later", "libgcc-s1": "GPL-3.0-or-later WITH GCC-exception-3.1",
          "libstdc++6": "GPL-3.0-or-later WITH GCC-exception-3.1", "zlib1g": "Zlib"}


def debian(package, machine="i686"):
    return package.format(machine=machine.replace("_", "-"))


def parts_of(platform):
    return {name: part for name, part in PARTS.items() if platform in part["platforms"]}


def notices(platform):
    """The licences of everything that is on a platform, as one text."""
    text = ["krm", "===", "", LICENCE.read_text().rstrip(), "", "What is inside that is not krm's own:", ""]
    parts = parts_of(platform)
    text += [f"- {name}: {part['where']} ({part['licence']})" for name, part in parts.items()]
    for name, part in parts.items():
        copyright_file = pathlib.Path("/usr/share/doc", debian(part["package"]), "copyright")
        text += ["", "", name, "=" * len(name), "", copyright_file.read_text().rstrip()]
    return "\n".join(text) + "\n"


def documents(platform, folder):
    target = pathlib.Path(folder, "share/doc/krm")
    for name in DOCUMENTS:
        (target / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(ROOT / name, target / name)
    (target / "licences.txt").write_text(notices(platform))


def epoch():
    return int(os.environ["SOURCE_DATE_EPOCH"])


def archive(folder, file):
    folder = pathlib.Path(folder)
    entries = sorted(folder.rglob("*"), key=lambda entry: entry.relative_to(folder).as_posix())
    if file.endswith(".zip"):
        with zipfile.ZipFile(file, "w", zipfile.ZIP_DEFLATED) as made:
            for entry in entries:
                if entry.is_file():
                    info = zipfile.ZipInfo(f"{folder.name}/{entry.relative_to(folder).as_posix()}", time.gmtime(epoch())[:6])
                    info.compress_type = zipfile.ZIP_DEFLATED
                    info.external_attr = 0o100644 << 16
                    made.writestr(info, entry.read_bytes())
        return
    with open(file, "wb") as raw, gzip.GzipFile("", "wb", mtime=epoch(), fileobj=raw) as packed, \
            tarfile.open(fileobj=packed, mode="w", format=tarfile.GNU_FORMAT) as made:
        for entry in entries:
            info = made.gettarinfo(entry, f"{folder.name}/{entry.relative_to(folder).as_posix()}")
            info.uid = info.gid = 0
            info.uname = info.gname = "root"
            info.mtime = epoch()
            if not info.issym():
                info.mode = 0o755 if info.isdir() or info.mode & 0o100 else 0o644
            # Without links between files: each is whole.
            if info.islnk():
                info.type, info.linkname, info.size = tarfile.REGTYPE, "", entry.stat().st_size
            if info.isreg():
                with open(entry, "rb") as content:
                    made.addfile(info, content)
            else:
                made.addfile(info)


def files_of(artefact):
    """Yields path and bytes of every regular file in an archive or a Debian package."""
    if artefact.suffix == ".zip":
        with zipfile.ZipFile(artefact) as made:
            for name in sorted(made.namelist()):
                yield name, made.read(name)
        return
    if artefact.suffix == ".deb":
        packed = io.BytesIO(subprocess.run(["dpkg-deb", "--fsys-tarfile", artefact], check=True, capture_output=True).stdout)
    else:
        packed = io.BytesIO(gzip.decompress(artefact.read_bytes()))
    with tarfile.open(fileobj=packed) as made:
        for member in sorted(made.getmembers(), key=lambda member: member.name):
            if member.isreg():
                yield member.name.removeprefix("./"), made.extractfile(member).read()


def version_of(package):
    return subprocess.run(["dpkg-query", "-W", "-f=${Version}", package], check=True, capture_output=True, text=True).stdout


def sbom(file, artefacts):
    packages, files, relationships = [], [], []

    def relate(one, how, other):
        relationships.append({"spdxElementId": one, "relationshipType": how, "relatedSpdxElement": other})

    def add_part(name, package, licence, where):
        """A package of Debian's, once however many artefacts hold it."""
        reference = "SPDXRef-Debian-" + re.sub(r"[^A-Za-z0-9.-]", "-", package)
        if all(known["SPDXID"] != reference for known in packages):
            version = version_of(package)
            packages.append({
                "SPDXID": reference, "name": name, "versionInfo": version, "supplier": "Organization: Debian",
                "downloadLocation": "NOASSERTION", "filesAnalyzed": False, "licenseConcluded": "NOASSERTION",
                "licenseDeclared": licence, "copyrightText": "NOASSERTION", "comment": where,
                "externalRefs": [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl", "referenceLocator":
                                  "pkg:deb/debian/" + package.replace("+", "%2B") + "@" + version.replace("+", "%2B")}]})
        return reference

    for artefact in sorted(map(pathlib.Path, artefacts), key=lambda artefact: artefact.name):
        reference = "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", artefact.name)
        sums = []
        for number, (name, content) in enumerate(files_of(artefact)):
            sums.append(hashlib.sha1(content).hexdigest())
            files.append({
                "SPDXID": f"{reference}-{number}", "fileName": f"./{name}",
                "checksums": [{"algorithm": "SHA1", "checksumValue": sums[-1]},
                              {"algorithm": "SHA256", "checksumValue": hashlib.sha256(content).hexdigest()}],
                "licenseConcluded": "NOASSERTION", "licenseInfoInFiles": ["NOASSERTION"], "copyrightText": "NOASSERTION"})
            relate(reference, "CONTAINS", f"{reference}-{number}")
        packages.append({
            "SPDXID": reference, "name": artefact.name, "versionInfo": version(), "packageFileName": artefact.name,
            "supplier": "Organization: The krm developers", "downloadLocation": "NOASSERTION", "filesAnalyzed": True,
            "packageVerificationCode":
                {"packageVerificationCodeValue": hashlib.sha1("".join(sorted(sums)).encode()).hexdigest()},
            "checksums": [{"algorithm": "SHA256", "checksumValue": hashlib.sha256(artefact.read_bytes()).hexdigest()}],
            "licenseConcluded": "NOASSERTION", "licenseInfoFromFiles": ["NOASSERTION"],
            "licenseDeclared": "LicenseRef-krm", "copyrightText": "NOASSERTION"})
        relate("SPDXRef-DOCUMENT", "DESCRIBES", reference)
        windows = re.search(r"windows-(\w+)\.zip$", artefact.name)
        for name, part in parts_of("windows" if windows else "linux").items():
            if artefact.suffix == ".deb" and name == "CLI11" and not artefact.name.startswith("krm_"):
                continue
            package = debian(part["package"], windows.group(1) if windows else "")
            relate(reference, "CONTAINS", add_part(name, package, part["licence"], part["where"]))
        if not windows and not artefact.name.startswith("libkrm-dev_"):
            for package, licence in LOADED.items():
                if package != "zlib1g" or not artefact.name.startswith("libkrm1_"):
                    relate(reference, "DYNAMIC_LINK", add_part(package, package, licence, "loaded from the system"))
    packages.sort(key=lambda package: package["SPDXID"])
    inside = hashlib.sha256(json.dumps([packages, files]).encode()).hexdigest()
    document = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"krm-{version()}",
        "documentNamespace": f"https://krm.invalid/spdx/krm-{version()}-{inside}",
        "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(epoch())),
                         "creators": ["Organization: The krm developers", "Tool: release.py"]},
        "hasExtractedLicensingInfos": [
            {"licenseId": "LicenseRef-krm", "name": "krm's own", "extractedText": LICENCE.read_text()}],
        "packages": packages, "files": files, "relationships": relationships}
    pathlib.Path(file).write_text(json.dumps(document, indent=1) + "\n")


def version():
    header = (ROOT / "krm/version.h").read_text()
    return ".".join(re.search(rf"^#define KRM_VERSION_{part} (\d+)$", header, re.MULTILINE).group(1)
                    for part in ("MAJOR", "MINOR", "PATCH"))


def main(verb, *arguments):
    if verb == "copyright":
        pathlib.Path(arguments[0]).write_text(notices("linux"))
    elif verb == "documents":
        documents(*arguments)
    elif verb == "archive":
        archive(*arguments)
    elif verb == "sbom":
        sbom(arguments[0], arguments[1:])
    elif verb == "version":
        print(version())
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(*(sys.argv[1:] or ["help"]))
