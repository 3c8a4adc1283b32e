# The signatures of what _runtime.py gives the package's users.
from types import TracebackType
from typing import NamedTuple

from typing_extensions import Self

class QuorvanError(ArithmeticError):
    code: int | None
    text: str
    function: str
    def __init__(self, code: int | None, text: str, function: str) -> None: ...

class QuorvanWarning(UserWarning):
    code: int
    text: str
    function: str
    def __init__(self, code: int, text: str, function: str) -> None: ...

class WindowProperties(NamedTuple):
    enbw: float
    coherent_gain: float

def find_library() -> str: ...

class Handle:
    def close(self) -> None: ...
    @property
    def closed(self) -> bool: ...
    def __enter__(self) -> Self: ...
    def __exit__(
        self, kind: type[BaseException] | None, error: BaseException | None, trace: TracebackType | None, /
    ) -> None: ...
    def __del__(self) -> None: ...
