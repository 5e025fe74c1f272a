-- The same three loops as mxbench, in Lua 5.4; prints "NAME ns-per-turn".
local n = tonumber(arg[1]) or 1000000
local function time(f)
  local t = os.clock(); f(); return (os.clock() - t) * 1e9 / n
end
local abs = math.abs -- a C function, standing in for a host function
print(string.format("int %.1f", time(function()
  local i, s = 0, 0
  while i < n do s = s + i; i = i + 1 end
end)))
print(string.format("float %.1f", time(function()
  local i, s = 0.0, 0.0
  while i < n do s = s + i; i = i + 1.0 end
end)))
print(string.format("call %.1f", time(function()
  local i, s = 0, 0
  while i < n do s = s + abs(i); i = i + 1 end
end)))
