#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Opens reports in headless Chromium: names in the guide, a search, a fold, no error and no request; and a stream
whose texts try to be markup. Exits with 77, which ctest takes for skipped, where there is no chromedriver.

    browse.py SIVANE_INSPECT SAMPLES [FOLDER FOR SCREENSHOTS]
"""
import base64
import json
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import urllib.request

HOSTILE = 'x</script><script>window.ran=1</script><img src=x onerror="window.ran=1">\'"&\u202e'


def crc(section):
    register = 0xFFFFFFFF
    for byte in section:
        register ^= byte << 24
        for _ in range(8):
            register = (register << 1 ^ (0x04C11DB7 if register & 0x80000000 else 0)) & 0xFFFFFFFF
    return struct.pack('>I', register)


def section(table_id, body):
    start = struct.pack('>BH', table_id, 0xF000 | len(body) + 4) + body
    return start + crc(start)


def descriptor(tag, body):
    return bytes([tag, len(body)]) + body


def loop(body):
    return struct.pack('>H', 0x8000 | len(body)) + body


def hostile_stream():
    name = b'\x15' + HOSTILE.encode()
    service = descriptor(0x48, bytes([1, len(name)]) + name + bytes([len(name)]) + name)
    event = descriptor(0x4D, b'eng' + bytes([len(name)]) + name + b'\0')
    tables = [
        (0x00, section(0x00, bytes.fromhex('0001c100000001e100'))),
        (0x10, section(0x40, bytes.fromhex('0001c10000') + struct.pack('>H', 0xF000 | len(name) + 2) + descriptor(0x40, name) + b'\xf0\0')),
        (0x11, section(0x42, bytes.fromhex('0001c100000001ff0001fd') + loop(service))),
        (0x12, section(0x4E, bytes.fromhex('0001c1000000010001004e0001ea60180000010000') + loop(event))),
    ]
    stream = b''
    for counter in range(4):
        for pid, content in tables:
            for i, start in enumerate(range(0, len(content) + 1, 184)):
                payload = (b'\0' + content)[start:start + 184]
                stream += struct.pack('>BHB', 0x47, (0x4000 if i == 0 else 0) | pid, 0x10 | (counter * 4 + i) & 15)
                stream += payload.ljust(184, b'\xff')
    return stream


class Browser:
    def __init__(self):
        self.port = 20000 + os.getpid() % 20000
        self.driver = subprocess.Popen(['chromedriver', f'--port={self.port}'], stdout=subprocess.DEVNULL)
        options = {'args': ['--headless=new', '--no-sandbox', '--disable-gpu', '--window-size=1400,1000']}
        wanted = {'browserName': 'chrome', 'goog:loggingPrefs': {'browser': 'ALL'}, 'goog:chromeOptions': options}
        self.url = f'http://127.0.0.1:{self.port}/session'
        for attempt in range(100):
            try:
                answer = self.ask('', {'capabilities': {'alwaysMatch': wanted}})
                break
            except OSError:
                time.sleep(0.1)
        self.url += '/' + answer['sessionId']

    def ask(self, path, content):
        request = urllib.request.Request(self.url + path, json.dumps(content).encode(), {'Content-Type': 'application/json'})
        with urllib.request.urlopen(request) as answer:
            return json.load(answer)['value']

    def run(self, script, *arguments):
        return self.ask('/execute/sync', {'script': script, 'args': list(arguments)})

    def protocol(self, command, **parameters):
        return self.ask('/goog/cdp/execute', {'cmd': command, 'params': parameters})

    def close(self):
        self.driver.terminate()
        self.driver.wait()


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


def search(browser, words):
    browser.run('const s = document.getElementById("search"); s.value = arguments[0]; s.dispatchEvent(new Event("input"));', words)
    time.sleep(0.5)
    return browser.run('return document.querySelectorAll("#found .hit").length')


def open_page(browser, page):
    browser.ask('/url', {'url': page.as_uri()})
    took = browser.run('return performance.getEntriesByType("navigation")[0].loadEventEnd')
    expect(took < 2000, f'{page.name} took {took} ms')
    return browser.run('return document.getElementById("guide").innerText')


def expect_quiet(browser, page):
    expect(browser.run('return performance.getEntriesByType("resource").length') == 0, f'{page.name} asked for more')
    log = browser.ask('/se/log', {'type': 'browser'})
    expect(not log, f'{page.name} says {log}')


def look_at_sample(browser, page, names, words):
    guide = open_page(browser, page)
    for name in names:
        expect(name in guide, f'{name} is not in the guide of {page.name}')
    expect(search(browser, words) > 0, f'{words} was not found in {page.name}')
    browser.run('document.querySelector("#sections details").open = true')
    time.sleep(0.2)
    expect(browser.run('return document.querySelectorAll("#sections .field").length') > 3, 'a fold stays empty')
    search(browser, '')
    expect_quiet(browser, page)


def look_at_hostile(browser, page):
    shown = open_page(browser, page)
    search(browser, 'onerror')
    expect('</script><script>window.ran=1' in shown, 'the text does not show as text')
    expect(browser.run('return window.ran === undefined && document.images.length === 0'), 'the text was run')
    expect_quiet(browser, page)


def take_screenshots(browser, page, folder):
    for scheme in ['light', 'dark']:
        for width in [1400, 400]:
            browser.protocol('Emulation.setEmulatedMedia', features=[{'name': 'prefers-color-scheme', 'value': scheme}])
            browser.protocol('Emulation.setDeviceMetricsOverride', width=width, height=1900, deviceScaleFactor=1, mobile=width < 600)
            open_page(browser, page)
            picture = browser.protocol('Page.captureScreenshot')['data']
            (folder / f'{page.stem}-{scheme}-{width}.png').write_bytes(base64.b64decode(picture))


def main():
    tool, samples = sys.argv[1], pathlib.Path(sys.argv[2])
    if shutil.which('chromedriver') is None or not samples.is_dir():
        return 77
    browser = Browser()
    try:
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / 'hostile.ts').write_bytes(hostile_stream())
            streams = [samples / 'satellite-fr.ts', samples / 'terrestrial-tw.ts', folder / 'hostile.ts']
            pages = [folder / (stream.stem + '.html') for stream in streams]
            for stream, page in zip(streams, pages):
                with open(page, 'wb') as out:
                    subprocess.run([tool, 'report', '--quiet', str(stream)], stdout=out, stderr=subprocess.DEVNULL)
            look_at_sample(browser, pages[0], ['TF1', 'LCI'], 'questions au gouvernement')
            look_at_sample(browser, pages[1], ['\u83ef\u8996CTS'], '\u6b66\u5a9a\u5a18')
            look_at_hostile(browser, pages[2])
            for page in pages if len(sys.argv) > 3 else []:
                take_screenshots(browser, page, pathlib.Path(sys.argv[3]))
    finally:
        browser.close()
    return 0


if __name__ == '__main__':
    sys.exit(main())
