-- The mxbench workloads in Lua 5.4, with locals; prints "NAME ns-per-turn".
-- Usage: lua5.4 loops.lua [N [WORKLOAD]]
local n = tonumber(arg[1]) or 1000000
local only = arg[2]
local abs = math.abs     -- a C function, standing in for a host function
local len = string.len   -- a library function, standing in for a built-in
local workloads = {
  {"int", function()
    local i, s = 0, 0
    while i < n do s = s + i; i = i + 1 end
  end},
  {"float", function()
    local i, s = 0.0, 0.0
    while i < n do s = s + i; i = i + 1.0 end
  end},
  {"text", function()
    local i, t = 0, ""
    while i < n do
      t = t .. i
      if len(t) >= 1000 then t = "" end
      i = i + 1
    end
  end},
  {"call", function()
    local i, s = 0, 0
    while i < n do s = s + abs(i); i = i + 1 end
  end},
  {"builtin", function()
    local i, s, t = 0, 0, "hello world"
    while i < n do s = s + len(t); i = i + 1 end
  end},
}
for _, w in ipairs(workloads) do
  if not only or only == w[1] then
    local t = os.clock(); w[2](); t = os.clock() - t
    print(string.format("%s %.1f", w[1], t * 1e9 / n))
  end
end
