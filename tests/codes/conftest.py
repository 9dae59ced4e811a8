"""The program under test: --programm, or ZEPHOLT_PROGRAMM, as a shell would split it (an emulator may stand in front)."""
import os
import shlex

import pytest

pytest.register_assert_rewrite("rahmen", "befunde", "katalogbau")

import rahmen  # noqa: E402  (its assertions are rewritten first)


def pytest_addoption(parser):
    parser.addoption("--programm", default=os.environ.get("ZEPHOLT_PROGRAMM", ""), help="the program under test")
    parser.addoption("--in-einem-prozess", action="store_true",
                     help="silent runs in one process of viele_laeufe, which stands beside the program")


def pytest_configure(config):
    befehl = shlex.split(config.getoption("--programm"))
    if not befehl and not config.option.collectonly:
        raise pytest.UsageError("no program: give --programm or set ZEPHOLT_PROGRAMM")
    rahmen.beginne(befehl, config.getoption("--in-einem-prozess"))


def pytest_sessionfinish(session):
    klagen = [] if session.config.option.collectonly else rahmen.schema_verstoesse()
    for klage in klagen[:10]:
        print("\nSCHEMA", klage)
    if klagen:
        session.exitstatus = pytest.ExitCode.TESTS_FAILED


def pytest_unconfigure():
    rahmen.beende()


def pytest_collection_finish():
    rahmen.nichts_offen()
