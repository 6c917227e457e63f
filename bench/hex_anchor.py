"""Prints the processor seconds that binascii takes for the hexadecimal digits in a file."""

import binascii
import sys
import time

path, direction = sys.argv[1:]
with open(path, "rb") as file:
    digits = file.read()
data = binascii.unhexlify(digits) if direction == "encode" else None
start = time.process_time()
result = binascii.unhexlify(digits) if direction == "decode" else binascii.hexlify(data)
print(time.process_time() - start)
