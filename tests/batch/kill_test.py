#!/usr/bin/env python3
"""Kills a batch run with SIGKILL at random moments and checks that every
document is then either byte-identical to its original or holds exactly the
parts of a fully processed copy.

usage: kill_test.py BATCH_TOOL CORPUS_DIR FILES KILLS"""
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import zipfile


def parts(path):
    with zipfile.ZipFile(path) as z:
        return {n: z.read(n) for n in z.namelist()}


def make_folder(corpus, folder, count):
    sources = sorted(os.path.join(root, f) for sub in ('powertools', 'poi')
                     for root, _, files in os.walk(os.path.join(corpus, 'docx', sub))
                     for f in files if f.endswith('.docx'))
    os.makedirs(folder)
    for i in range(count):
        sub = os.path.join(folder, f'part{i % 3}')
        os.makedirs(sub, exist_ok=True)
        shutil.copy(sources[i % len(sources)], os.path.join(sub, f'{i:03d}.docx'))


def documents(folder):
    return sorted(os.path.relpath(os.path.join(r, f), folder)
                  for r, _, files in os.walk(folder) for f in files if f.endswith('.docx'))


def main():
    tool, corpus, count, kills = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
    work = tempfile.mkdtemp(prefix='lp_batch_kill_')
    failures = []
    try:
        originals = os.path.join(work, 'originals')
        make_folder(corpus, originals, count)
        names = documents(originals)
        reference = os.path.join(work, 'reference')
        shutil.copytree(originals, reference)
        start = time.monotonic()
        subprocess.run([tool, 'tab0', reference], check=True, capture_output=True)
        duration = time.monotonic() - start
        original_bytes = {n: open(os.path.join(originals, n), 'rb').read() for n in names}
        processed = {n: parts(os.path.join(reference, n)) for n in names}
        rng = random.Random(20261124)
        for k in range(kills):
            run = os.path.join(work, f'run{k}')
            shutil.copytree(originals, run)
            proc = subprocess.Popen([tool, 'tab0', run], stdout=subprocess.DEVNULL)
            time.sleep(rng.uniform(0.05, 1.0) * duration)
            proc.send_signal(signal.SIGKILL)
            proc.wait()
            done = 0
            if documents(run) != names:
                failures.append(f'kill {k}: the set of documents changed')
            for n in names:
                path = os.path.join(run, n)
                if not os.path.exists(path):
                    continue
                data = open(path, 'rb').read()
                if data == original_bytes[n]:
                    continue
                try:
                    same = parts(path) == processed[n]
                except zipfile.BadZipFile:
                    same = False
                if same:
                    done += 1
                else:
                    failures.append(f'kill {k}: {n} is neither original nor fully processed')
            print(f'kill {k}: {done}/{len(names)} processed when killed')
            shutil.rmtree(run)
    finally:
        shutil.rmtree(work, ignore_errors=True)
    for f in failures[:40]:
        print(f)
    print(f'{len(failures)} failures')
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
