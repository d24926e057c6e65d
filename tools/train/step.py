"""One step of training. On an accelerator it is recorded once and replayed, which saves the launches."""
import torch
from torch.nn import functional as F

import validate


class Step:
    def __init__(self, network, recipe, device):
        self.network, self.recipe, self.device = network, recipe, device
        self.rate = torch.tensor(recipe.rate, device=device)
        capturable = device == "cuda"
        self.adam = torch.optim.Adam(network.parameters(), self.rate if capturable else recipe.rate, betas=(0.9, 0.99),
                                     capturable=capturable)
        self.recording = None

    def set_rate(self, rate):
        self.rate.fill_(rate)
        if self.device != "cuda":
            self.adam.param_groups[0]["lr"] = rate

    def __call__(self, worn, conditions, clean):
        """Learns from a batch and returns its loss, still on the device."""
        if self.device != "cuda":
            return self._learn(worn, conditions, clean)
        if not self.recording:
            self._record(worn, conditions, clean)
        for own, given in zip(self.inputs, (worn, conditions, clean)):
            own.copy_(given)
        self.recording.replay()
        return self.loss

    def _learn(self, worn, conditions, clean):
        with torch.autocast(self.device, torch.bfloat16, cache_enabled=False):
            answer = self.network(worn, conditions).float()
        if self.recipe.scale > 1:
            answer = answer + validate.enlarged(worn, self.recipe.scale)
        loss = F.l1_loss(answer, clean)
        self.adam.zero_grad(set_to_none=True)
        loss.backward()
        torch.nn.utils.clip_grad_norm_(self.network.parameters(), 0.5, foreach=True)
        self.adam.step()
        return loss.detach()

    def _record(self, *batch):
        layout = dict(memory_format=torch.channels_last)
        self.inputs = [x.clone(**(layout if x.dim() == 4 else {})) for x in batch]
        aside = torch.cuda.Stream()
        aside.wait_stream(torch.cuda.current_stream())
        with torch.cuda.stream(aside):
            for _ in range(3):
                self._learn(*self.inputs)
        torch.cuda.current_stream().wait_stream(aside)
        self.recording = torch.cuda.CUDAGraph()
        with torch.cuda.graph(self.recording):
            self.loss = self._learn(*self.inputs)
