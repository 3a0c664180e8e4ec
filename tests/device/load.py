#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Keeps an NVIDIA GPU busy with matrix products for a share of the time: load.py PERCENT.

Needs the driver alone: the product is written in PTX, which the driver itself compiles (NVIDIA's
"Parallel Thread Execution ISA" and "CUDA Driver API"). Says "busy" on a line once it works.
"""
import ctypes
import sys
import time

SIZE = 1024
TILE = 16
PERIOD = 0.1  # seconds, of which PERCENT are busy; well below the driver's own sample period

PRODUCT = b"""
.version 6.0
.target sm_60
.address_size 64
.visible .entry product(.param .u64 a, .param .u64 b, .param .u64 c, .param .u32 n)
{
    .reg .pred %again;
    .reg .b32 %n, %row, %column, %size, %block, %index, %k;
    .reg .b64 %a, %b, %c, %offset, %pitch;
    .reg .f32 %x, %y, %sum;

    ld.param.u64 %a, [a];
    ld.param.u64 %b, [b];
    ld.param.u64 %c, [c];
    ld.param.u32 %n, [n];
    cvta.to.global.u64 %a, %a;
    cvta.to.global.u64 %b, %b;
    cvta.to.global.u64 %c, %c;

    mov.u32 %block, %ctaid.x;
    mov.u32 %size, %ntid.x;
    mov.u32 %index, %tid.x;
    mad.lo.u32 %column, %block, %size, %index;
    mov.u32 %block, %ctaid.y;
    mov.u32 %size, %ntid.y;
    mov.u32 %index, %tid.y;
    mad.lo.u32 %row, %block, %size, %index;

    mad.lo.u32 %index, %row, %n, %column;
    mul.wide.u32 %offset, %index, 4;
    add.u64 %c, %c, %offset;
    mul.lo.u32 %index, %row, %n;
    mul.wide.u32 %offset, %index, 4;
    add.u64 %a, %a, %offset;
    mul.wide.u32 %offset, %column, 4;
    add.u64 %b, %b, %offset;
    mul.wide.u32 %pitch, %n, 4;

    mov.f32 %sum, 0f00000000;
    mov.u32 %k, 0;
next:
    ld.global.f32 %x, [%a];
    ld.global.f32 %y, [%b];
    fma.rn.f32 %sum, %x, %y, %sum;
    add.u64 %a, %a, 4;
    add.u64 %b, %b, %pitch;
    add.u32 %k, %k, 1;
    setp.lt.u32 %again, %k, %n;
    @%again bra next;

    st.global.f32 [%c], %sum;
    ret;
}
\0"""


class Device:
    """The first GPU, ready to multiply."""

    def __init__(self):
        self.cuda = ctypes.CDLL("libcuda.so.1")
        self.call("cuInit", 0)
        device, context = ctypes.c_int(), ctypes.c_void_p()
        self.call("cuDeviceGet", ctypes.byref(device), 0)
        self.call("cuDevicePrimaryCtxRetain", ctypes.byref(context), device)
        self.call("cuCtxSetCurrent", context)
        module, self.function = ctypes.c_void_p(), ctypes.c_void_p()
        self.call("cuModuleLoadData", ctypes.byref(module), PRODUCT)
        self.call("cuModuleGetFunction", ctypes.byref(self.function), module, b"product")
        self.arguments = [self.matrix(), self.matrix(), self.matrix(), ctypes.c_uint(SIZE)]
        pointers = [ctypes.addressof(argument) for argument in self.arguments]
        self.pointers = (ctypes.c_void_p * len(pointers))(*pointers)

    def call(self, name, *arguments):
        result = getattr(self.cuda, name)(*arguments)
        if result != 0:
            sys.exit(f"{name} failed with {result}")

    def matrix(self):
        size = ctypes.c_size_t(SIZE * SIZE * 4)
        memory = ctypes.c_uint64()
        self.call("cuMemAlloc_v2", ctypes.byref(memory), size)
        self.call("cuMemsetD32_v2", memory, 0x3F000000, ctypes.c_size_t(SIZE * SIZE))
        return memory

    def multiply(self):
        blocks = SIZE // TILE
        self.call("cuLaunchKernel", self.function, blocks, blocks, 1, TILE, TILE, 1, 0, None,
                  self.pointers, None)
        self.call("cuCtxSynchronize")


def main():
    share = float(sys.argv[1]) / 100
    device = Device()
    device.multiply()
    print("busy", flush=True)
    while True:
        begin = time.monotonic()
        while time.monotonic() - begin < PERIOD * share:
            device.multiply()
        # What the last product took too long is made up for by a longer pause.
        busy = time.monotonic() - begin
        if share < 1:
            time.sleep(busy * (1 - share) / share)


if __name__ == "__main__":
    main()
