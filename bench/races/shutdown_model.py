#!/usr/bin/env python3
"""Tries every order in which the threads can take their steps while the program ends.

    shutdown_model.py

The threads are written down as steps, each of which is atomic in the program as well: a call under one lock, a
post to a queue, a wait. Two ends are tried: a quit, on the main thread, and the exit() of a library on another
thread, while the main thread goes on. In every order:

    no thread uses the device objects after they are destroyed
    every thread comes to its end
    the registry says at the end that the PC's own devices are used

Prints the number of states and an order that breaks a rule; exit code 0 means that there is none.
"""

import sys
from typing import NamedTuple


class State(NamedTuple):
    at: tuple  # the next step of each thread
    gate_open: bool = True
    inside: int = 0  # calls of the channel library within the gate
    released: bool = False
    posted: bool = False  # the value posted last for the registry
    queue: tuple = ()
    registry: bool = False
    tasks_ended: bool = False
    status_stops: bool = False
    status_ended: bool = False
    destroyed: bool = False
    gone: bool = False  # the process


class Broken(Exception):
    pass


# A step returns the state after it and the number of the next step, or None while it has to wait.


def uses_device(state):
    if state.destroyed:
        raise Broken("a destroyed object is used")


def post(state, value):
    """RemoteDeviceSwitch::post()"""
    uses_device(state)
    if value and state.released:
        return state
    return state._replace(posted=value, queue=state.queue + (value,))


def enter_gate(state, at):
    if not state.gate_open:
        return state, at + 3
    return state._replace(inside=state.inside + 1), at + 1


def select_byod(state, at):
    return post(state, True), at + 1


def leave_gate(state, at):
    return state._replace(inside=state.inside - 1), at + 1


CHANNEL = [enter_gate, select_byod, leave_gate] * 2


def status_pass(state, at):
    uses_device(state)
    if state.status_stops:
        return state._replace(status_ended=True), at + 1
    return state, at


STATUS = [status_pass]


def run_task(state, at):
    if not state.queue:
        return None
    task, *rest = state.queue
    state = state._replace(queue=tuple(rest))
    if task != "finish":
        return state._replace(registry=task), at
    for value in rest:  # TaskQueue::finish() performs what waits
        state = state._replace(registry=value)
    return state._replace(queue=(), tasks_ended=True), at + 1


TASKS = [run_task]


def close_gate(state, at):
    return state._replace(gate_open=False), at + 1


def await_calls(state, at):
    return None if state.inside else (state, at + 1)


def release(state, at):
    """RemoteDeviceSwitch::release()"""
    if state.posted:
        state = post(state, False)
    return state._replace(released=True), at + 1


def stop_status(state, at):
    return state._replace(status_stops=True), at + 1


def stop_tasks(state, at):
    return state._replace(queue=state.queue + ("finish",)), at + 1


def join_tasks(state, at):
    return (state, at + 1) if state.tasks_ended else None


def join_status(state, at):
    return (state, at + 1) if state.status_ended else None


def destroy(state, at):
    return state._replace(destroyed=True), at + 1


def leave(state, at):
    return state._replace(gone=True), at + 1


END_THREADS = [close_gate, await_calls, release, stop_status, stop_tasks, join_tasks, join_status]
ENDS = {
    "quit": {"channel": CHANNEL, "status": STATUS, "tasks": TASKS,
             "main": [select_byod, *END_THREADS, destroy, leave]},
    "exit() of a library": {"channel": CHANNEL, "status": STATUS, "tasks": TASKS,
                            "main": [select_byod, select_byod], "library": [*END_THREADS, leave]},
}


def successors(state, threads):
    for number, (name, steps) in enumerate(threads.items()):
        at = state.at[number]
        if at >= len(steps):
            continue
        taken = steps[at](state, at)
        if taken is not None:
            after, next_step = taken
            places = list(state.at)
            places[number] = next_step
            yield f"{name}: {steps[at].__name__}", after._replace(at=tuple(places))


def explore(threads):
    """Returns the number of states; raises Broken with the order of the steps."""
    first = State(at=(0,) * len(threads))
    before = {first: None}
    waiting = [first]
    while waiting:
        state = waiting.pop()
        try:
            if state.gone:
                if state.registry:
                    raise Broken("the PC's devices stay switched off")
                continue
            following = list(successors(state, threads))
            if all(after == state for _, after in following):
                raise Broken("no thread can go on")
        except Broken as rule:
            order = []
            while before[state]:
                step, state = before[state]
                order.insert(0, step)
            raise Broken(f"{rule}\n  " + "\n  ".join(order)) from None
        for step, after in following:
            if after not in before:
                before[after] = step, state
                waiting.append(after)
    return len(before)


def main():
    broken = 0
    for name, threads in ENDS.items():
        try:
            print(f"{name}: {explore(threads)} states, no order breaks a rule")
        except Broken as reason:
            broken += 1
            print(f"{name}: {reason}")
    sys.exit(broken)


main()
