try
  risky()
catch {message, code}
  console.log message, code
finally
  cleanup()
result = try JSON.parse text catch then null
try
  quiet()
throw new Error "no" if bad
